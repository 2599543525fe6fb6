#include "Widgets/Revenue/ProviderRequest.h"

#include "Widgets/Exchange.h"
#include "Widgets/Json.h"

#include <QCoreApplication>

namespace fendrel::revenue {

HttpRequest get(const QUrl& url, const QString& key, const QByteArray& accept) {
    return {.url = url, .headers = {bearer(key), {"Accept", accept}}};
}

QUrl address(const QString& base, const Query& query) {
    QByteArrayList pairs;
    for (const auto& [name, value] : query)
        pairs.append(QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value));
    QUrl url(base);
    url.setQuery(QString::fromLatin1(pairs.join('&')), QUrl::StrictMode);
    return url;
}

QString isoTime(WallTime time) {
    return toDateTime(time).toString(Qt::ISODate);
}

std::optional<HttpRequest> following(const HttpRequest& request, const QJsonValue& address) {
    const QUrl next = json::webAddress(address);
    if (next.isEmpty() || next.authority() != request.url.authority())
        return {};
    HttpRequest following = request;
    following.url = next;
    return following;
}

Fetched<QJsonObject> body(const HttpResponse& response, const QString& service) {
    if (const auto refused = refusal(response, service))
        return Fetched<QJsonObject>::failure(*refused);
    const auto object = json::object(response.body);
    return object ? Fetched<QJsonObject>(*object) : Fetched<QJsonObject>::failure(FetchFailure::undecodable());
}

FetchFailure badDate() {
    return FetchFailure::told(QCoreApplication::translate("Feed", "Bad date"));
}

} // namespace fendrel::revenue
