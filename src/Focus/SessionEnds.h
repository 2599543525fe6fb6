#pragma once

#include <QDateTime>
#include <QList>

namespace fendrel {

/// The full and half hours by the clock on the wall that a focus session could last until: the next few, none of them
/// so near that the session would be over before it began.
QList<QDateTime> sessionEnds(const QDateTime& now);

/// When those are others.
QDateTime sessionEndsChangeAt(const QDateTime& now);

} // namespace fendrel
