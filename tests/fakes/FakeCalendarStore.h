#pragma once

#include "Ports/CalendarStore.h"

#include <list>
#include <memory>
#include <utility>

namespace fendrel {

/// A calendar that answers when told to. It gives all it has, whatever range it is asked for.
class FakeCalendarStore final : public CalendarStore {
public:
    void choose(const CalendarChoice& choice) override { chosen = choice.folder; }
    Source source() const override { return state == Access::granted ? Source::system : Source::none; }
    QStringList folders() const override { return {}; }
    Access access(Kind) const override { return state; }
    void requestAccess(Kind) override { state = Access::granted; }
    Handle events(WallTime from, WallTime to, Found<CalendarEvent> done) override {
        asked.append({from, to});
        return later([this, done] { done(answer(eventItems)); });
    }
    Handle reminders(WallTime from, WallTime to, Found<CalendarReminder> done) override {
        asked.append({from, to});
        return later([this, done] { done(answer(reminderItems)); });
    }
    Handle complete(const QString& reminderID, Saved done) override {
        return later([this, reminderID, done] {
            if (!failure)
                reminderItems.removeIf([&](const CalendarReminder& each) { return each.id == reminderID; });
            done(!failure);
        });
    }
    Handle add(const QString& title, QDate due, Saved done) override {
        return later([this, title, due, done] {
            if (!failure)
                reminderItems.append({.id = title, .title = title, .due = toWallTime(due.startOfDay())});
            done(!failure);
        });
    }

    /// Answers all that was asked, and what is asked meanwhile.
    void answerAll() {
        while (!m_waiting.empty()) {
            const auto [isWanted, run] = std::move(m_waiting.front());
            m_waiting.pop_front();
            if (*isWanted)
                run();
        }
    }

    QList<CalendarEvent> eventItems;
    QList<CalendarReminder> reminderItems;
    std::optional<Access> failure;
    Access state = Access::granted;
    QString chosen;
    QList<std::pair<WallTime, WallTime>> asked;

private:
    template<class Item>
    Result<QList<Item>, Access> answer(const QList<Item>& items) const {
        using Answer = Result<QList<Item>, Access>;
        return failure ? Answer::failure(*failure) : Answer(items);
    }
    Handle later(std::function<void()> run) {
        const auto isWanted = std::make_shared<bool>(true);
        m_waiting.emplace_back(isWanted, std::move(run));
        return Handle([isWanted] { *isWanted = false; });
    }

    std::list<std::pair<std::shared_ptr<bool>, std::function<void()>>> m_waiting;
};

} // namespace fendrel
