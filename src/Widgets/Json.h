#pragma once

#include "Base/WallTime.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QUrl>

#include <optional>

namespace fendrel::json {

/// The object that a body is; nothing for anything else.
std::optional<QJsonObject> object(const QByteArray& body);

/// A whole number, also one that is written as text.
std::optional<qint64> integer(const QJsonValue& value);

/// A moment in ISO 8601, with a fraction of any length. Without a zone it is UTC.
std::optional<WallTime> moment(const QJsonValue& value);

/// A moment as a count of seconds or milliseconds since 1970, before the year 10000.
std::optional<WallTime> unixTime(const QJsonValue& value, std::chrono::milliseconds unit);

/// An address that a browser may be sent to: https, with a host. Anything else is none.
QUrl webAddress(const QJsonValue& value);

} // namespace fendrel::json
