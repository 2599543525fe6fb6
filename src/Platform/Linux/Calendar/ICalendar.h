#pragma once

#include "Platform/Linux/Calendar/RecurrenceRule.h"
#include "Ports/CalendarStore.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>
#include <vector>

namespace fendrel {

/// One VEVENT or VTODO (RFC 5545, 3.6).
struct CalendarEntry {
    int number{};  ///< among the events and tasks of its text, whether they can be read or not
    bool isTask{}; ///< else an event
    QString uid{};
    QString title{};
    QString location{};
    QString notes{};
    QString url{};
    CalendarMoment start{};
    std::optional<CalendarMoment> due{}; ///< of a task
    qint64 days{};                       ///< that an event takes, by the calendar
    qint64 seconds{};                    ///< that it takes besides, by the clock
    bool isCancelled{};
    bool isDone{};
    QStringList declined{};                       ///< addresses of those who will not come, lower-case
    std::optional<CalendarMoment> recurrence{};   ///< which instance of a series it replaces
    bool movesFollowing{};                        ///< it stands for the instances after it, too
    std::vector<RecurrenceRule> rules{};          ///< when it comes again
    std::vector<RecurrenceRule> exceptionRules{}; ///< and when not
    QList<CalendarMoment> dates{};                ///< when it comes besides
    QList<CalendarMoment> exceptions{};           ///< when it doesn't

    /// Which instance it replaces, by the clock of the series.
    LocalSeconds original(const CalendarMoment& seriesStart, const CalendarZone& users) const;
};

/// Who reads a calendar.
struct CalendarReader {
    CalendarZone zone{QTimeZone::systemTimeZone()};
    QStringList addresses{}; ///< the reader's own, lower-case
};

/// What a calendar's text says (RFC 5545). What can't be read of it is left out. For one thread at a time: the library
/// works out zones and rules when they are first wanted, and so does this.
class ICalendar {
public:
    ICalendar() = default;
    explicit ICalendar(const QByteArray& text);

    /// What overlaps [from, to).
    QList<CalendarEvent> events(WallTime from, WallTime to, const CalendarReader& reader);
    /// What is due in [from, to) and open.
    QList<CalendarReminder> reminders(WallTime from, WallTime to, const CalendarReader& reader);

    bool hasTasks() const;
    bool isOnly(const QString& uid) const;                                            ///< there is nothing else in it
    qsizetype seriesCount() const { return static_cast<qsizetype>(m_series.size()); } ///< of events and tasks

private:
    /// All entries of one UID.
    struct Series {
        std::optional<CalendarEntry> main{};
        std::vector<CalendarEntry> replacements{}; ///< of single instances
        // The instances that begin in a span, so that the next question about it need not look for them.
        LocalSeconds knownFrom{};
        LocalSeconds knownTo{};
        std::optional<QList<LocalSeconds>> known{};
    };
    struct Occurrence {
        const CalendarEntry* entry{};
        std::optional<LocalSeconds> original{}; ///< when it was to begin, where it is one of several
        LocalSeconds start{};                   ///< by its entry's clock
    };

    /// Those that may begin in [from, to]: they are to be looked at again.
    QList<Occurrence> occurrences(Series& series, UtcSeconds from, UtcSeconds to, const CalendarZone& users);
    const QList<LocalSeconds>& instances(Series& series, LocalSeconds from, LocalSeconds to, const CalendarZone& users);
    QList<LocalSeconds> findInstances(Series& series, LocalSeconds from, LocalSeconds to, const CalendarZone& users);

    std::vector<Series> m_series;
    std::chrono::nanoseconds m_wasted{}; ///< by this question, on rules that the library follows in vain
};

/// Which reminder is meant, in one text: a UID, and where it comes again, the original start of this one.
struct TaskKey {
    QString uid{};
    std::optional<LocalSeconds> original{};

    QString toString() const; ///< has no "/" before the one that separates its parts
    static TaskKey fromString(const QString& text);
};

/// Where a series begins once the ones up to some moment are left behind.
struct SeriesStep {
    LocalSeconds next{};
    int passed{}; ///< as many of its rule's lie before that
};
std::optional<SeriesStep> nextInstance(CalendarEntry entry, LocalSeconds after, const CalendarZone& users);

/// The entries of a text, in its order.
std::vector<CalendarEntry> readICalendar(const QByteArray& text);

/// What a value of TEXT stands for (RFC 5545, 3.3.11).
QString unescaped(const QString& value);

/// The identifiers of zones in a text that cannot be found by their names alone.
QStringList unknownZones(const QByteArray& text);

} // namespace fendrel
