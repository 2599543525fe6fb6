#include "Widgets/Calendar/RemindersFeed.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>

namespace fendrel {

namespace {

QDate dayOf(WallTime time) {
    return toDateTime(time).toTimeZone(QTimeZone::systemTimeZone()).date();
}

WallTime startOf(QDate day) {
    return toWallTime(day.startOfDay(QTimeZone::systemTimeZone()));
}

} // namespace

RemindersFeed::RemindersFeed(CalendarStore& store, Clock& clock) : m_store(store), m_clock(clock) {}

void RemindersFeed::setActive(bool isActive) {
    if (isActive == m_isActive)
        return;
    m_isActive = isActive;
    m_tomorrow.reset();
    m_clockSet.reset();
    if (!isActive)
        return;
    m_clockSet = m_clock.onWallClockSet([this] {
        awaitTomorrow();
        refresh(true);
    });
    awaitTomorrow();
    refresh(true);
}

void RemindersFeed::awaitTomorrow() {
    const WallTime now = m_clock.now();
    m_tomorrow = m_clock.after(startOf(dayOf(now).addDays(1)) - now, [this] {
        awaitTomorrow();
        refresh(true);
    });
}

void RemindersFeed::storeChanged() {
    if (m_isActive || m_isLoading) // what was asked of a source that has gone is never answered
        refresh(true);
    Q_EMIT changed(); // its access may be all that did
}

void RemindersFeed::refresh(bool force) {
    if (m_isLoading && !force)
        return;
    const QDate today = dayOf(m_clock.now());
    m_isLoading = true;
    m_reading =
        m_store.reminders(startOf(today), startOf(today.addDays(1)), [this](const auto& found) { take(found); });
    Q_EMIT changed();
}

void RemindersFeed::take(const Result<QList<CalendarReminder>, Access>& found) {
    m_isLoading = false;
    if (found) {
        m_items.clear();
        for (const CalendarReminder& each : *found)
            if (!m_completing.contains(each.id))
                m_items.append(
                    {.id = each.id,
                     .title = each.title.isEmpty() ? QCoreApplication::translate("Feed", "Untitled") : each.title,
                     .due = each.due,
                     .hasTime = each.hasTime});
        std::ranges::sort(m_items, {},
                          [](const Item& item) { return std::tuple(item.hasTime, item.due, item.title, item.id); });
        m_updatedAt = m_clock.now();
    } else if (found.error() == Access::denied || found.error() == Access::missing) {
        m_items.clear(); // what else fails may go better the next time
        m_updatedAt.reset();
    }
    Q_EMIT changed();
}

RemindersFeed::Access RemindersFeed::access() const {
    return m_store.access(CalendarStore::Kind::reminders);
}

void RemindersFeed::requestAccess() {
    m_store.requestAccess(CalendarStore::Kind::reminders);
}

void RemindersFeed::complete(const QString& id) {
    if (m_items.removeIf([&id](const Item& item) { return item.id == id; }) == 0)
        return;
    // An answer that is under way has it still. The look after this one has them all.
    m_reading.reset();
    m_isLoading = false;
    m_completing[id] = m_store.complete(id, [this, id](bool) {
        refresh(true);
        m_completing.erase(QString(id)); // takes this with it
    });
    Q_EMIT changed();
}

void RemindersFeed::add(const QString& title) {
    const QString text = title.simplified();
    if (!text.isEmpty())
        m_adding = m_store.add(text, dayOf(m_clock.now()), [this](bool) { refresh(true); });
}

} // namespace fendrel
