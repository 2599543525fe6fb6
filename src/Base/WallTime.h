#pragma once

#include <QDateTime>

#include <chrono>

namespace fendrel {

using WallTime = std::chrono::sys_time<std::chrono::milliseconds>; ///< UTC

inline QDateTime toDateTime(WallTime time) {
    return QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count(), Qt::UTC);
}

inline WallTime toWallTime(const QDateTime& date) {
    return WallTime(std::chrono::milliseconds(date.toMSecsSinceEpoch()));
}

} // namespace fendrel
