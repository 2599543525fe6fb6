#pragma once

#include "Base/Handle.h"
#include "Base/Result.h"
#include "Base/WallTime.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace fendrel {

/// One occurrence of an event, in the user's time. Texts are as the calendar has them, notes perhaps as HTML.
struct CalendarEvent {
    QString id{}; ///< of this occurrence
    QString title{};
    WallTime start{};
    WallTime end{};    ///< the first moment after it
    bool isAllDay{};   ///< then start and end are the user's midnights
    bool isDeclined{}; ///< the user will not come
    QString location{};
    QString notes{};
    QString url{};
    bool operator==(const CalendarEvent&) const = default;
};

/// A reminder that is still to be done.
struct CalendarReminder {
    QString id{};
    QString title{};
    WallTime due{};
    bool hasTime{}; ///< else it is due on that day, and `due` is its midnight
    bool operator==(const CalendarReminder&) const = default;
};

/// What the user picks where the system leaves the choice.
struct CalendarChoice {
    QString folder{}; ///< of iCalendar files; empty: found without being told
    bool operator==(const CalendarChoice&) const = default;
};

/// The user's calendars and lists of reminders. Main thread; nothing blocks. Answers come later, never from inside the
/// call and never after the handle is dropped; what was asked to be saved is saved all the same. The system's store is
/// first looked for when something is asked of it.
class CalendarStore {
public:
    enum class Kind { events, reminders };
    enum class Access {
        unknown, ///< not asked for yet
        granted,
        denied,  ///< the user changes it in the system's settings
        missing, ///< this system has no such store
    };
    enum class Source { none, system, folders };
    using Saved = std::function<void(bool)>;
    template<class Item>
    using Found = std::function<void(const Result<QList<Item>, Access>&)>;

    virtual ~CalendarStore() = default;

    virtual void choose(const CalendarChoice&) {}
    virtual Source source() const = 0;       ///< where answers come from now
    virtual QStringList folders() const = 0; ///< paths, where the source is folders
    virtual Access access(Kind kind) const = 0;
    virtual void requestAccess(Kind kind) = 0; ///< may ask the user

    /// What overlaps [from, to): declined events too, cancelled ones not. In no particular order.
    virtual Handle events(WallTime from, WallTime to, Found<CalendarEvent> done) = 0;
    /// What is due in [from, to) and not done yet, of all lists. In no particular order.
    virtual Handle reminders(WallTime from, WallTime to, Found<CalendarReminder> done) = 0;

    virtual Handle complete(const QString& reminderID, Saved done) = 0;
    virtual Handle add(const QString& title, QDate due, Saved done) = 0; ///< to the user's own list

    std::function<void()> onChanged = [] {}; ///< what it holds, its source or its access
};

} // namespace fendrel
