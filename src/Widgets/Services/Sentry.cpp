#include "Widgets/Services/Sentry.h"

#include "Widgets/Exchange.h"
#include "Widgets/Json.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace fendrel::sentry {

using namespace Qt::StringLiterals;

namespace {

const QString name = u"Sentry"_s;

bool isOurs(const QUrl& address) {
    const QString host = address.host();
    return address.scheme() == "https"_L1 && (host == "sentry.io"_L1 || host.endsWith(".sentry.io"_L1)) &&
           address.port(443) == 443 && address.userInfo().isEmpty();
}

FetchFailure told(const char* text) {
    return FetchFailure::told(QCoreApplication::translate("Feed", text));
}

HttpRequest request(const QUrl& address, const QString& key) {
    return {.url = address, .headers = {bearer(key), {"Accept", "application/json"}}};
}

qint64 hits(const HttpResponse& response, qint64 otherwise) {
    const auto header = std::ranges::find(response.headers, QByteArray("x-hits"), &HttpHeaders::value_type::first);
    bool isNumber = false;
    const qint64 total = header == response.headers.end() ? 0 : header->second.trimmed().toLongLong(&isNumber);
    return isNumber && total >= otherwise ? total : otherwise;
}

} // namespace

HttpRequest organizationsRequest(const QString& key) {
    return request(QUrl(u"https://sentry.io/api/0/organizations/"_s), key);
}

Fetched<Organization> readOrganization(const HttpResponse& response) {
    if (const auto refused = refusal(response, name))
        return Fetched<Organization>::failure(*refused);
    const auto document = QJsonDocument::fromJson(response.body);
    if (!document.isArray())
        return Fetched<Organization>::failure(FetchFailure::undecodable());
    for (const auto& each : document.array()) {
        const QString slug = each["slug"_L1].toString();
        if (!slug.isEmpty())
            return Organization{.slug = slug, .region = QUrl(each["links"_L1]["regionUrl"_L1].toString())};
    }
    return Fetched<Organization>::failure(told(QT_TRANSLATE_NOOP("Feed", "No Sentry organization")));
}

std::optional<HttpRequest> issuesRequest(const QString& key, const Organization& organization) {
    const QUrl base = organization.region.isEmpty() ? QUrl(u"https://sentry.io"_s) : organization.region;
    if (!isOurs(base))
        return {};
    const QString address =
        u"https://%1/api/0/organizations/%2/issues/?query=is%3Aunresolved&statsPeriod=24h&sort=freq&limit=5"_s;
    const QByteArray slug = QUrl::toPercentEncoding(organization.slug);
    return request(QUrl(QString(address).replace("%1"_L1, base.host()).replace("%2"_L1, QString::fromLatin1(slug))),
                   key);
}

Fetched<Snapshot> readIssues(const HttpResponse& response) {
    if (const auto refused = refusal(response, name))
        return Fetched<Snapshot>::failure(*refused);
    const auto document = QJsonDocument::fromJson(response.body);
    if (!document.isArray())
        return Fetched<Snapshot>::failure(FetchFailure::undecodable());
    Snapshot snapshot;
    for (const auto& each : document.array()) {
        const Issue issue{.shortId = each["shortId"_L1].toString(),
                          .title = each["title"_L1].toString(),
                          .culprit = each["culprit"_L1].toString(),
                          .level = each["level"_L1].toString(),
                          .permalink = json::webAddress(each["permalink"_L1]),
                          .events = json::integer(each["count"_L1]).value_or(0),
                          .users = json::integer(each["userCount"_L1]).value_or(0)};
        if (!issue.shortId.isEmpty())
            snapshot.issues.append(issue);
    }
    snapshot.total = hits(response, snapshot.issues.size());
    return snapshot;
}

Handle fetch(HttpClient& http, const QString& key, FetchDone<Snapshot> done) {
    const auto request = std::make_shared<Handle>();
    *request = exchange<Organization>(
        http, organizationsRequest(key), readOrganization,
        [&http, key, request, done = std::move(done)](const auto& found) {
            if (!found)
                return done(Fetched<Snapshot>::failure(found.error()));
            const auto next = issuesRequest(key, *found);
            if (!next)
                return done(Fetched<Snapshot>::failure(told(QT_TRANSLATE_NOOP("Feed", "Bad Sentry address"))));
            *request = exchange<Snapshot>(http, *next, readIssues, done);
        });
    return lastOf(request);
}

} // namespace fendrel::sentry
