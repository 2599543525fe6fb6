#include "Widgets/Calendar/CalendarFeed.h"

#include "Widgets/Calendar/JoinLink.h"

#include <QCoreApplication>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

CalendarFeed::Event shown(const CalendarEvent& event) {
    return {.id = event.id,
            .title = event.title.isEmpty() ? QCoreApplication::translate("Feed", "Untitled event") : event.title,
            .start = event.start,
            .end = event.end,
            .isAllDay = event.isAllDay,
            .location = event.location,
            .joinURL = joinURL(event)};
}

} // namespace

const QString CalendarFeed::settingKey = u"calendarFolder"_s;

CalendarFeed::CalendarFeed(CalendarStore& store, Clock& clock) : m_store(store), m_clock(clock) {}

void CalendarFeed::setActive(bool isActive) {
    if (isActive == this->isActive())
        return;
    m_timer.reset();
    if (!isActive)
        return;
    m_timer = m_clock.every(60s, 10s, [this] { refresh(false); }); // events end
    refresh(true);
}

void CalendarFeed::storeChanged() {
    if (isActive() || m_isLoading) // what was asked of a source that has gone is never answered
        refresh(true);
    Q_EMIT changed(); // its access may be all that did
}

void CalendarFeed::refresh(bool force) {
    if (m_isLoading && !force)
        return;
    const WallTime now = m_clock.now();
    m_isLoading = true;
    m_reading = m_store.events(now, now + 24h, [this](const auto& found) { take(found); });
    Q_EMIT changed();
}

void CalendarFeed::take(const Result<QList<CalendarEvent>, Access>& found) {
    m_isLoading = false;
    if (found) {
        m_upcoming.clear();
        for (const CalendarEvent& event : *found)
            if (!event.isDeclined)
                m_upcoming.append(shown(event));
        std::ranges::sort(m_upcoming, {}, [](const Event& event) {
            return std::tuple(event.isAllDay, event.start, event.end, event.title, event.id);
        });
        m_updatedAt = m_clock.now();
    } else if (found.error() == Access::denied || found.error() == Access::missing) {
        m_upcoming.clear(); // what else fails may go better the next time
        m_updatedAt.reset();
    }
    Q_EMIT changed();
}

CalendarFeed::Access CalendarFeed::access() const {
    return m_store.access(CalendarStore::Kind::events);
}

void CalendarFeed::requestAccess() {
    m_store.requestAccess(CalendarStore::Kind::events);
}

std::optional<CalendarFeed::Event> CalendarFeed::next(WallTime at) const {
    const Event* found = nullptr;
    for (const Event& event : m_upcoming) {
        const bool isUnderWay = event.start <= at && at < event.end;
        if (event.isAllDay) {
            if (!found && at < event.end)
                found = &event;
        } else if (isUnderWay || (event.start >= at && !found)) {
            found = &event;
        }
    }
    return found ? std::optional(*found) : std::nullopt;
}

} // namespace fendrel
