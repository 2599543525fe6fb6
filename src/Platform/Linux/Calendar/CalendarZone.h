#pragma once

#include <QDateTime>
#include <QTimeZone>

#include <memory>
#include <optional>

using icalcomponent = struct icalcomponent_impl;

namespace fendrel {

/// Seconds since 1970 as some clock on a wall shows them, in whatever zone it hangs.
using LocalSeconds = qint64;
/// Seconds since 1970, UTC.
using UtcSeconds = qint64;

/// A time zone that a calendar names, or describes itself.
class CalendarZone {
public:
    explicit CalendarZone(const QTimeZone& zone) : m_zone(zone) {}
    /// By a VTIMEZONE, which is copied.
    explicit CalendarZone(icalcomponent* description);

    /// A time that is skipped when clocks go forward is as much later as they go; of a time that comes twice, the
    /// first.
    UtcSeconds toUtc(LocalSeconds local) const;
    LocalSeconds toLocal(UtcSeconds utc) const;

    /// The zone behind an identifier: an IANA name, also behind the prefixes that programs put before it, or a name
    /// that Windows has for it. Nothing where neither is known here.
    static std::optional<QTimeZone> known(const QByteArray& identifier);

private:
    qint64 offsetAt(UtcSeconds utc) const;

    QTimeZone m_zone;
    std::shared_ptr<void> m_described; ///< the library's; null: m_zone counts
};

/// A date or a time as a calendar has it.
struct CalendarMoment {
    LocalSeconds local{}; ///< of a date: its midnight
    bool isDate{};
    std::shared_ptr<const CalendarZone> zone{}; ///< null: of no zone, so that it is the user's

    UtcSeconds toUtc(const CalendarZone& users) const { return at(local, users); }
    /// The same clock at another time. A date begins when the user's day does.
    UtcSeconds at(LocalSeconds otherLocal, const CalendarZone& users) const;
};

} // namespace fendrel
