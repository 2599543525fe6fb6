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

} // namespace

RecurrenceRule::RecurrenceRule(const QByteArray& rule, const CalendarMoment& start) : m_rule(rule), m_start(start) {}

void RecurrenceRule::settle(const CalendarZone& users) {
    m_isSettled = true;
    auto rule = icalrecurrencetype_from_string(m_rule.constData());
    // What comes every second is a mistake, or meant to keep us busy.
    m_isEmpty = rule.freq == ICAL_NO_RECURRENCE || rule.freq == ICAL_SECONDLY_RECURRENCE;
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
    auto rule = icalrecurrencetype_from_string(m_rule.constData());
    rule.count = 0;
    rule.until = fields(to, m_start.isDate); // so that the library looks no further either
    const Iterator iterator(icalrecur_iterator_new(rule, fields(m_start.local, m_start.isDate)));
    if (!iterator) {
        m_isEmpty = true;
        return {};
    }
    if (from > m_start.local)
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

} // namespace fendrel
