#include "Platform/Linux/Calendar/CalendarZone.h"

#include <libical/ical.h>

#include <utility>

namespace fendrel {

namespace {

constexpr qint64 day = 86'400;

icaltimezone* described(const std::shared_ptr<void>& zone) {
    return static_cast<icaltimezone*>(zone.get());
}

/// Clocks are never set by the number of the week, and the library crashes over some rules that say so.
void dropWeekNumbers(icalcomponent* zone) {
    for (auto* part = icalcomponent_get_first_component(zone, ICAL_ANY_COMPONENT); part != nullptr;
         part = icalcomponent_get_next_component(zone, ICAL_ANY_COMPONENT)) {
        auto* each = icalcomponent_get_first_property(part, ICAL_RRULE_PROPERTY);
        while (each != nullptr) {
            const bool isWrong = icalproperty_get_rrule(each).by_week_no[0] != ICAL_RECURRENCE_ARRAY_MAX;
            if (isWrong) {
                icalcomponent_remove_property(part, each);
                icalproperty_free(each);
            }
            each = isWrong ? icalcomponent_get_first_property(part, ICAL_RRULE_PROPERTY)
                           : icalcomponent_get_next_property(part, ICAL_RRULE_PROPERTY);
        }
    }
}

} // namespace

CalendarZone::CalendarZone(icalcomponent* description)
    : m_described(icaltimezone_new(), [](void* zone) { icaltimezone_free(static_cast<icaltimezone*>(zone), 1); }) {
    icalcomponent* copy = icalcomponent_new_clone(description);
    dropWeekNumbers(copy);
    if (icaltimezone_set_component(described(m_described), copy) == 0) {
        icalcomponent_free(copy);
        m_described.reset();
        m_zone = QTimeZone::systemTimeZone();
    }
}

std::optional<QTimeZone> CalendarZone::known(const QByteArray& identifier) {
    if (identifier.isEmpty())
        return {};
    if (const QByteArray iana = QTimeZone::windowsIdToDefaultIanaId(identifier); !iana.isEmpty())
        return QTimeZone(iana);
    // "/example.org/2024a/Europe/Berlin": the longest end of it that is a name.
    for (qsizetype start = identifier.startsWith('/') ? 1 : 0; start < identifier.size();) {
        const QByteArray name = identifier.sliced(start);
        if (QTimeZone::isTimeZoneIdAvailable(name))
            return QTimeZone(name);
        const qsizetype slash = identifier.indexOf('/', start);
        if (slash < 0)
            break;
        start = slash + 1;
    }
    return {};
}

qint64 CalendarZone::offsetAt(UtcSeconds utc) const {
    if (!m_described)
        return m_zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(utc, Qt::UTC));
    auto time = icaltime_from_timet_with_zone(utc, 0, icaltimezone_get_utc_timezone());
    int isDaylight = 0;
    return icaltimezone_get_utc_offset_of_utc_time(described(m_described), &time, &isDaylight);
}

UtcSeconds CalendarZone::toUtc(LocalSeconds local) const {
    // Clocks are changed far less often than once in two days.
    const qint64 before = offsetAt(local - day);
    const qint64 after = offsetAt(local + day);
    const bool isAfter = offsetAt(local - before) != before && offsetAt(local - after) == after;
    return local - (isAfter ? after : before);
}

LocalSeconds CalendarZone::toLocal(UtcSeconds utc) const {
    return utc + offsetAt(utc);
}

UtcSeconds CalendarMoment::at(LocalSeconds otherLocal, const CalendarZone& users) const {
    return (isDate || !zone ? users : *zone).toUtc(otherLocal);
}

} // namespace fendrel
