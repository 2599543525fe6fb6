#include "Platform/Linux/Calendar/RecurrenceRule.h"

#include <libical/ical.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace fendrel {

namespace {

struct FreeIterator {
    void operator()(icalrecur_iterator* iterator) const { icalrecur_iterator_free(iterator); }
};
using Iterator = std::unique_ptr<icalrecur_iterator, FreeIterator>;

// All of this is done on the start's own clock: the library is told of no zone.
icaltimetype fields(LocalSeconds local, bool isDate) {
    return icaltime_from_timet_with_zone(local, isDate ? 1 : 0, nullptr);
}

LocalSeconds local(const icaltimetype& fields) {
    return QDateTime(QDate(fields.year, fields.month, fields.day), QTime(0, 0), Qt::UTC).toSecsSinceEpoch() +
           (fields.is_date != 0 ? 0 : fields.hour * 3600 + fields.minute * 60 + fields.second);
}

/// How far a rule is followed that is written in small steps: the library takes each of them, whether it counts or not.
std::optional<LocalSeconds> searched(icalrecurrencetype_frequency frequency) {
    constexpr LocalSeconds day = 86'400;
    if (frequency == ICAL_MINUTELY_RECURRENCE)
        return 60 * day;
    if (frequency == ICAL_HOURLY_RECURRENCE)
        return 5 * 365 * day;
    return {};
}

bool isSet(const short* values) {
    return *values != ICAL_RECURRENCE_ARRAY_MAX;
}

/// As the library has it, mended where it would fall over it. Of no frequency where there is nothing to follow.
icalrecurrencetype understood(const QByteArray& text, const CalendarMoment& start) {
    auto rule = icalrecurrencetype_from_string(text.constData());
    const bool hasDay = isSet(rule.by_day) || isSet(rule.by_month_day) || isSet(rule.by_year_day);
    if (rule.freq == ICAL_YEARLY_RECURRENCE && isSet(rule.by_week_no) && !hasDay) {
        // The start's day of the week is meant (RFC 5545, 3.3.10). Left to itself the library crashes.
        rule.by_day[0] = static_cast<short>(icaltime_day_of_week(fields(start.local, true)));
        rule.by_day[1] = ICAL_RECURRENCE_ARRAY_MAX;
    }
    const bool hasSet = hasDay || isSet(rule.by_week_no) || isSet(rule.by_month) || isSet(rule.by_hour) ||
                        isSet(rule.by_minute) || isSet(rule.by_second);
    // What comes every second is a mistake, or meant to keep us busy. A position needs a set to be in.
    if (rule.freq == ICAL_SECONDLY_RECURRENCE || (isSet(rule.by_set_pos) && !hasSet))
        rule.freq = ICAL_NO_RECURRENCE;
    return rule;
}

/// How long a rule's own step always is.
std::optional<LocalSeconds> step(const icalrecurrencetype& rule) {
    if (rule.freq == ICAL_MINUTELY_RECURRENCE)
        return 60 * LocalSeconds(rule.interval);
    if (rule.freq == ICAL_HOURLY_RECURRENCE)
        return 3600 * LocalSeconds(rule.interval);
    return {};
}

} // namespace

RecurrenceRule::RecurrenceRule(const QByteArray& rule, const CalendarMoment& start) : m_rule(rule), m_start(start) {}

void RecurrenceRule::settle(const CalendarZone& users) {
    m_isSettled = true;
    auto rule = understood(m_rule, m_start);
    m_isEmpty = rule.freq == ICAL_NO_RECURRENCE;
    if (m_isEmpty)
        return;
    if (rule.count > 0) {
        if (const auto horizon = searched(rule.freq))
            rule.until = fields(m_start.local + *horizon, m_start.isDate);
        const Iterator iterator(icalrecur_iterator_new(rule, fields(m_start.local, m_start.isDate)));
        for (int number = 0; iterator && number < std::min(rule.count, mostInstances); ++number) {
            const auto next = icalrecur_iterator_next(iterator.get());
            if (icaltime_is_null_time(next) != 0)
                break;
            m_last = local(next);
        }
        m_isEmpty = !m_last;
    } else if (icaltime_is_null_time(rule.until) == 0) {
        const LocalSeconds until = local(rule.until);
        if (icaltime_is_utc(rule.until) != 0 && !m_start.isDate)
            m_last = (m_start.zone ? *m_start.zone : users).toLocal(until);
        else // a date stands for all of its day
            m_last = until + (rule.until.is_date != 0 && !m_start.isDate ? 86'399 : 0);
    }
}

QList<LocalSeconds> RecurrenceRule::instances(LocalSeconds from, LocalSeconds to, const CalendarZone& users) {
    if (!m_isSettled)
        settle(users);
    if (m_last)
        to = std::min(to, *m_last);
    if (m_isEmpty || to < std::max(from, m_start.local))
        return {};
    auto rule = understood(m_rule, m_start);
    rule.count = 0;
    rule.until = fields(to, m_start.isDate); // so that the library looks no further either
    LocalSeconds start = m_start.local;
    // The library, told to begin later, loses count of hours and minutes: there the series begins later itself, on an
    // earlier day, of which it leaves out hours that are listed.
    const auto step = fendrel::step(rule);
    const LocalSeconds midnight = from - (from % 86'400 + 86'400) % 86'400;
    if (step && midnight > start)
        start += (midnight - start) / *step * *step;
    const Iterator iterator(icalrecur_iterator_new(rule, fields(start, m_start.isDate)));
    if (!iterator) {
        m_isEmpty = true;
        return {};
    }
    if (!step && from > start)
        icalrecur_iterator_set_start(iterator.get(), fields(from, m_start.isDate));
    QList<LocalSeconds> found;
    while (found.size() < mostInstances) {
        const auto next = icalrecur_iterator_next(iterator.get());
        if (icaltime_is_null_time(next) != 0 || local(next) > to)
            break;
        if (local(next) >= from)
            found.append(local(next));
    }
    return found;
}

void RecurrenceRule::searchedInVain() {
    // Rules of shorter steps are searched up to a moment that was given, and may come true after it.
    const auto frequency = understood(m_rule, m_start).freq;
    m_isEmpty = m_isEmpty || frequency == ICAL_MONTHLY_RECURRENCE || frequency == ICAL_YEARLY_RECURRENCE;
}

} // namespace fendrel
