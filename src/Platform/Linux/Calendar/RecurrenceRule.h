#pragma once

#include "Platform/Linux/Calendar/CalendarZone.h"

#include <QByteArray>
#include <QList>

namespace fendrel {

/// A rule by which something comes again (RFC 5545, 3.3.10), bounded: no rule gives more than `mostInstances` at once.
class RecurrenceRule {
public:
    static constexpr int mostInstances = 10'000;

    /// `rule` as in RRULE. `start` is the first of the series, which is not always one of the rule's own.
    RecurrenceRule(const QByteArray& rule, const CalendarMoment& start);

    /// Those that begin in [from, to], ascending, by the clock of the start. Of more than there may be, the first.
    QList<LocalSeconds> instances(LocalSeconds from, LocalSeconds to, const CalendarZone& users);
    /// The library took long to find nothing. Is not asked again where that was to the end of its time.
    void searchedInVain();

private:
    /// Knows when a rule of so many times ends, so that it need not be counted through again.
    void settle(const CalendarZone& users);

    QByteArray m_rule;
    CalendarMoment m_start;
    bool m_isSettled = false;
    bool m_isEmpty = false;
    std::optional<LocalSeconds> m_last;
};

} // namespace fendrel
