#pragma once

#include "Platform/Shared/AtNextTurn.h"
#include "Ports/CalendarStore.h"

#include <utility>

namespace fendrel {

class NullCalendarStore final : public CalendarStore {
public:
    Source source() const override { return Source::none; }
    QStringList folders() const override { return {}; }
    Access access(Kind) const override { return Access::missing; }
    void requestAccess(Kind) override {}
    Handle events(WallTime, WallTime, Found<CalendarEvent> done) override { return refuse(std::move(done)); }
    Handle reminders(WallTime, WallTime, Found<CalendarReminder> done) override { return refuse(std::move(done)); }
    Handle complete(const QString&, Saved done) override { return refuse(std::move(done)); }
    Handle add(const QString&, QDate, Saved done) override { return refuse(std::move(done)); }

private:
    template<class Item>
    static Handle refuse(Found<Item> done) {
        return atNextTurn([done = std::move(done)] { done(Result<QList<Item>, Access>::failure(Access::missing)); });
    }
    static Handle refuse(Saved done) {
        return atNextTurn([done = std::move(done)] { done(false); });
    }
};

} // namespace fendrel
