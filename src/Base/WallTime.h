#pragma once

#include <QDateTime>

#include <chrono>

namespace fendrel {

using WallTime = std::chrono::sys_time<std::chrono::milliseconds>; ///< UTC

/// From which the dates of property lists and of the log of notifications are counted.
inline constexpr WallTime referenceDate = std::chrono::sys_days(std::chrono::year(2001) / 1 / 1);

inline QDateTime toDateTime(WallTime time) {
    return QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count(), Qt::UTC);
}

inline WallTime toWallTime(const QDateTime& date) {
    return WallTime(std::chrono::milliseconds(date.toMSecsSinceEpoch()));
}

} // namespace fendrel
