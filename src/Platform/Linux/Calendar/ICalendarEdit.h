#pragma once

#include "Platform/Linux/Calendar/ICalendar.h"

#include <QDate>

#include <optional>

namespace fendrel {

/// Changes to a calendar's text (RFC 5545). What they are not about stays as it was, byte for byte: properties of other
/// programs, alarms, the order of lines and how they end.
struct ICalendarEdit {
    QByteArray text{}; ///< all of it
    QByteArray task{}; ///< the one VTODO that was changed

    /// Marks a reminder as done. Of one that comes again only this one: the series then begins at its next one, as task
    /// programs do it that show a series by its start. Nothing where there is no such reminder.
    static std::optional<ICalendarEdit> completed(const QByteArray& text, const TaskKey& key, WallTime now,
                                                  const CalendarZone& users);

    /// A VTODO that is due on a day, and nothing around it.
    static QByteArray newTask(const QString& uid, const QString& title, QDate due, WallTime now);
    /// A calendar of these components.
    static QByteArray calendarOf(const QByteArray& components);
    /// Puts a VTODO at the end of a calendar, of an empty text into a new one. Nothing where the text has no such end:
    /// it is something else, or only a part.
    static std::optional<QByteArray> added(const QByteArray& text, const QByteArray& task);
};

} // namespace fendrel
