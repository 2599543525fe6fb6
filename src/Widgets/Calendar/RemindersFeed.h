#pragma once

#include "Ports/CalendarStore.h"
#include "Ports/Clock.h"
#include "Widgets/WidgetFeed.h"

#include <map>

namespace fendrel {

/// What is due today and not done yet. Main thread.
class RemindersFeed final : public WidgetFeed {
    Q_OBJECT
public:
    using Access = CalendarStore::Access;
    struct Item {
        QString id{};
        QString title{};
        WallTime due{};
        bool hasTime{}; ///< else it is due at any time of the day
        bool operator==(const Item&) const = default;
    };

    RemindersFeed(CalendarStore& store, Clock& clock);

    bool isActive() const override { return m_isActive; }
    void setActive(bool isActive) override;
    void refresh(bool force) override;
    bool isLoading() const override { return m_isLoading; }
    std::optional<WallTime> updatedAt() const override { return m_updatedAt; }
    void storeChanged(); ///< to be told when what the store holds, or its access, may be otherwise

    Access access() const;
    void requestAccess();
    const QList<Item>& items() const { return m_items; } ///< those without a time first, then by time

    /// It goes from the list at once. Where that can't be saved, it is back with the next look.
    void complete(const QString& id);
    void add(const QString& title); ///< due today; nothing but white space adds nothing

private:
    void awaitTomorrow();
    void take(const Result<QList<CalendarReminder>, Access>& found);

    CalendarStore& m_store;
    Clock& m_clock;
    QList<Item> m_items;
    std::optional<WallTime> m_updatedAt;
    bool m_isActive = false;
    bool m_isLoading = false;
    Handle m_reading;
    std::map<QString, Handle> m_completing; ///< by their IDs; not shown meanwhile
    Handle m_adding;
    Handle m_tomorrow;
    Handle m_clockSet;
};

} // namespace fendrel
