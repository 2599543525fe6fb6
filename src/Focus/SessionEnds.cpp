#include "Focus/SessionEnds.h"

namespace fendrel {

namespace {

constexpr qint64 halfHour = 1800;      // seconds
constexpr qint64 shortest = 10LL * 60; // seconds
constexpr int count = 6;

/// The first full or half hour after a moment.
QDateTime nextHalfHour(const QDateTime& moment) {
    const QDateTime local = moment.toLocalTime();
    const qint64 past = local.time().msecsSinceStartOfDay() % (halfHour * 1000);
    return local.addMSecs(halfHour * 1000 - past);
}

} // namespace

QList<QDateTime> sessionEnds(const QDateTime& now) {
    QList<QDateTime> ends{nextHalfHour(now.addSecs(shortest))};
    while (ends.size() < count)
        ends.append(nextHalfHour(ends.last()));
    return ends;
}

QDateTime sessionEndsChangeAt(const QDateTime& now) {
    return sessionEnds(now).first().addSecs(-shortest);
}

} // namespace fendrel
