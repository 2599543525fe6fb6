#pragma once

#include "Ports/CalendarStore.h"
#include "Ports/Clock.h"
#include "Widgets/WidgetFeed.h"

#include <QUrl>

namespace fendrel {

/// The events of the next 24 hours that the user has not declined. Main thread.
class CalendarFeed final : public WidgetFeed {
    Q_OBJECT
public:
    using Access = CalendarStore::Access;
    struct Event {
        QString id{};
        QString title{};
        WallTime start{};
        WallTime end{};
        bool isAllDay{};
        QString location{};
        std::optional<QUrl> joinURL{}; ///< of its video call
        bool operator==(const Event&) const = default;
    };

    /// Of the folder that the user's calendars are in; empty: found without being told.
    static const QString settingKey;

    CalendarFeed(CalendarStore& store, Clock& clock);

    bool isActive() const override { return m_timer.has_value(); }
    void setActive(bool isActive) override;
    void refresh(bool force) override; ///< also while it is not active
    bool isLoading() const override { return m_isLoading; }
    std::optional<WallTime> updatedAt() const override { return m_updatedAt; }
    void storeChanged(); ///< to be told when what the store holds, or its access, may be otherwise

    Access access() const;
    void requestAccess();
    /// By their start, those of a whole day last.
    const QList<Event>& upcoming() const { return m_upcoming; }
    /// Under way at that moment, the latest to have started, or else the next to start; of a whole day only where there
    /// is no other.
    std::optional<Event> next(WallTime at) const;

private:
    void take(const Result<QList<CalendarEvent>, Access>& found);

    CalendarStore& m_store;
    Clock& m_clock;
    QList<Event> m_upcoming;
    std::optional<WallTime> m_updatedAt;
    std::optional<Handle> m_timer;
    Handle m_reading;
    bool m_isLoading = false;
};

} // namespace fendrel
