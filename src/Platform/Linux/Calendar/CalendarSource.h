#pragma once

#include "Ports/CalendarStore.h"

#include <chrono>

namespace fendrel {

/// After which what could not be read, or is not watched, is looked at again.
inline constexpr std::chrono::seconds calendarsRetry{60};

/// One of the things that the user's calendars are kept by. As the port says: main thread, answers come later.
class CalendarSource {
public:
    template<class Item>
    using Found = CalendarStore::Found<Item>;
    using Access = CalendarStore::Access;
    using Saved = CalendarStore::Saved;

    virtual ~CalendarSource() = default;

    virtual CalendarStore::Source kind() const = 0;
    virtual QStringList folders() const { return {}; }
    virtual Handle events(WallTime from, WallTime to, Found<CalendarEvent> done) = 0;
    virtual Handle reminders(WallTime from, WallTime to, Found<CalendarReminder> done) = 0;
    virtual Handle complete(const QString& reminderID, Saved done) = 0;
    virtual Handle add(const QString& title, QDate due, Saved done) = 0;

    std::function<void()> onChanged = [] {}; ///< or could not be read or watched, so that it is time for another look
    std::function<void()> onGone = [] {};    ///< it answers no more; to be dropped later, not during the call
};

} // namespace fendrel
