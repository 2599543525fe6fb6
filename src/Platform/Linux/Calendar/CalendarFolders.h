#pragma once

#include "Base/Worker.h"
#include "Platform/Linux/Calendar/CalendarFiles.h"
#include "Platform/Linux/Calendar/CalendarSource.h"
#include "Platform/Linux/Calendar/FolderWatch.h"
#include "Ports/Clock.h"

#include <memory>

namespace fendrel {

/// Calendars that are folders of iCalendar files. They are read by the worker.
class CalendarFolders final : public CalendarSource {
public:
    CalendarFolders(const CalendarPlaces& places, Worker& worker, Clock& clock);

    CalendarStore::Source kind() const override { return CalendarStore::Source::folders; }
    QStringList folders() const override { return m_paths; }
    Handle events(WallTime from, WallTime to, Found<CalendarEvent> done) override;
    Handle reminders(WallTime from, WallTime to, Found<CalendarReminder> done) override;
    Handle complete(const QString& reminderID, Saved done) override;
    Handle add(const QString& title, QDate due, Saved done) override;

private:
    template<class Item>
    Handle read(std::function<QList<Item>(CalendarFiles&)> work, Found<Item> done);
    void fileChanged();

    Worker& m_worker;
    Clock& m_clock;
    QStringList m_paths;
    std::shared_ptr<CalendarFiles> m_files; ///< the worker's
    FolderWatch m_watch;
    Handle m_changes;
    Handle m_again;
};

} // namespace fendrel
