#include "Widgets/FetchFailure.h"

#include <QCoreApplication>

#include <algorithm>

namespace fendrel {

using namespace std::chrono_literals;

namespace {

QString inWords(const char* text) {
    return QCoreApplication::translate("Feed", text);
}

constexpr std::chrono::seconds usualPause = 20min; // after "too many requests"; one of the services documents it

/// Only seconds: a date would need the server's clock to be ours. A day is as good as for ever.
std::optional<std::chrono::seconds> retryAfter(const HttpResponse& response) {
    const auto header = std::ranges::find(response.headers, QByteArray("retry-after"), &HttpHeaders::value_type::first);
    bool isNumber = false;
    const int seconds = header == response.headers.end() ? 0 : header->second.trimmed().toInt(&isNumber);
    if (!isNumber)
        return response.status == 429 ? std::optional<std::chrono::seconds>(usualPause) : std::nullopt;
    return std::clamp(std::chrono::seconds(seconds), 0s, std::chrono::seconds(24h));
}

} // namespace

QString message(const FetchFailure& failure, const QString& service) {
    switch (failure.kind) {
    case FetchFailure::Kind::told:
        return failure.error.message;
    case FetchFailure::Kind::undecodable:
        return inWords(QT_TRANSLATE_NOOP("Feed", "%1 sent something unexpected")).arg(service);
    case FetchFailure::Kind::unreachable:
        break;
    }
    return inWords(QT_TRANSLATE_NOOP("Feed", "Couldn't reach %1")).arg(service);
}

QString refusedKey(const QString& service) {
    return inWords(QT_TRANSLATE_NOOP("Feed", "%1 didn't accept the key")).arg(service);
}

std::optional<FetchFailure> answered(const HttpResponse& response, const QString& service) {
    if (response.status == 200)
        return {};
    auto failure =
        FetchFailure::told(inWords(QT_TRANSLATE_NOOP("Feed", "%1 answered %2")).arg(service).arg(response.status));
    failure.retryAfter = retryAfter(response);
    return failure;
}

std::optional<FetchFailure> refusal(const HttpResponse& response, const QString& service) {
    if (response.status == 401 || response.status == 403)
        return FetchFailure::told(refusedKey(service));
    return answered(response, service);
}

FetchFailure failure(const HttpError& error) {
    return error.kind == HttpError::Kind::tooLarge ? FetchFailure::undecodable() : FetchFailure::unreachable();
}

} // namespace fendrel
