#pragma once

#include "Base/Worker.h"
#include "Platform/Linux/Calendar/CalendarPlaces.h"
#include "Platform/Linux/Calendar/CalendarSource.h"
#include "Ports/Clock.h"

#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace fendrel {

/// The folder that the user chose, else the desktop's calendar server, else the folders that programs which sync keep
/// calendars in. Everybody's programs may read those, so that access is never asked for.
class DesktopCalendar final : public CalendarStore {
public:
    /// `places` finds the usual folders, on a thread of its own.
    explicit DesktopCalendar(Clock& clock, std::function<CalendarPlaces()> places = standardPlaces);
    ~DesktopCalendar() override;
    DesktopCalendar(const DesktopCalendar&) = delete;
    DesktopCalendar& operator=(const DesktopCalendar&) = delete;

    static CalendarPlaces standardPlaces();

    void choose(const CalendarChoice& choice) override;
    Source source() const override { return m_source ? m_source->kind() : Source::none; }
    QStringList folders() const override { return m_source ? m_source->folders() : QStringList(); }
    Access access(Kind kind) const override;
    void requestAccess(Kind kind) override;
    Handle events(WallTime from, WallTime to, Found<CalendarEvent> done) override;
    Handle reminders(WallTime from, WallTime to, Found<CalendarReminder> done) override;
    Handle complete(const QString& reminderID, Saved done) override;
    Handle add(const QString& title, QDate due, Saved done) override;

private:
    enum class Kept { no, yes };
    /// What somebody waits for, perhaps until there is a source, or it is clear that there is none.
    struct Question {
        std::function<Handle(CalendarSource*)> put{};
        Kept kept{}; ///< it is put although nobody waits for its answer any more
        Handle answer{};
        bool isWanted{true};

        void putTo(CalendarSource* source);
    };

    Handle ask(Kept kept, std::function<Handle(CalendarSource*)> put);
    Handle save(Saved done, std::function<Handle(CalendarSource&, Saved)> put);
    void drop(); ///< the source, and what is asked of it; who has something saved is told that it failed
    void look();
    void lookForFolders();
    void use(std::unique_ptr<CalendarSource> source);

    Clock& m_clock;
    std::function<CalendarPlaces()> m_places;
    CalendarChoice m_choice;
    std::optional<Worker> m_worker;
    std::unique_ptr<CalendarSource> m_source;
    bool m_hasLooked = false;
    std::list<std::shared_ptr<Question>> m_waiting;
    std::list<std::weak_ptr<Question>> m_put;
    Handle m_looking;
    Handle m_news;
};

} // namespace fendrel
