#include "Widgets/Json.h"

#include <QDateTime>
#include <QJsonDocument>

namespace fendrel::json {

using namespace Qt::StringLiterals;

std::optional<QJsonObject> object(const QByteArray& body) {
    const auto document = QJsonDocument::fromJson(body);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

std::optional<qint64> integer(const QJsonValue& value) {
    if (value.isString()) {
        bool isNumber = false;
        const qint64 number = value.toString().toLongLong(&isNumber);
        return isNumber ? std::optional(number) : std::nullopt;
    }
    // A fraction, and what is too large to be exact, gives the default; two different ones tell that from a value.
    const qint64 number = value.toInteger(0);
    return value.isDouble() && number == value.toInteger(1) ? std::optional(number) : std::nullopt;
}

std::optional<WallTime> moment(const QJsonValue& value) {
    QDateTime date = QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
    if (!date.isValid())
        return {};
    if (date.timeSpec() == Qt::LocalTime)
        date.setTimeSpec(Qt::UTC);
    return toWallTime(date);
}

std::optional<WallTime> unixTime(const QJsonValue& value, std::chrono::milliseconds unit) {
    constexpr WallTime end = std::chrono::sys_days(std::chrono::year(10'000) / 1 / 1);
    const auto count = integer(value);
    const bool isMoment = count && *count >= 0 && *count < end.time_since_epoch() / unit;
    return isMoment ? std::optional(WallTime(*count * unit)) : std::nullopt;
}

QUrl webAddress(const QJsonValue& value) {
    const QUrl address(value.toString(), QUrl::StrictMode);
    return address.scheme() == "https"_L1 && !address.host().isEmpty() ? address : QUrl();
}

} // namespace fendrel::json
