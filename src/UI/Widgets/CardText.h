#pragma once

#include "Base/WallTime.h"

#include <QList>
#include <QStringList>

#include <vector>

namespace fendrel::card {

/// How long ago that was, in few characters: "3 min". What is to come is "now".
QString age(WallTime moment, WallTime now);

/// Those that say something, with a dot between them.
QString joined(const QStringList& parts);

/// An hour of the day as short as the user's country writes it: "14", "2 PM".
QString hour(WallTime time);

/// A time of the day as the user's country writes it: "14:05", "2:05 PM".
QString clock(WallTime time);

/// The same without minutes where they are zero and the hour says what it is without them: "14:00", "2 PM".
QString shortClock(WallTime time);

/// Of the user's day that `now` is in, from 0 to 1; days on which clocks change are longer or shorter.
qreal shareOfDay(WallTime now);

/// Sums of a day, drawn into 0 to 1 with their zero line: else a day that begins with less would look like any other.
/// Nothing where all of them are zero.
QList<qreal> dayCurve(const QList<qint64>& cumulative);

/// Values drawn into 0 to 1, the least and the largest at the ends. All are 0.5 where they don't differ, or differ too
/// much to be counted with.
QList<qreal> scaled(const std::vector<double>& values);

} // namespace fendrel::card
