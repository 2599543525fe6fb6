#include "Platform/Linux/Calendar/CalendarFolders.h"

#include "Base/OnWorker.h"

#include <utility>

namespace fendrel {

using namespace std::chrono_literals;

namespace {

constexpr auto changesSettle = 500ms; // a program that syncs writes many files

} // namespace

CalendarFolders::CalendarFolders(const CalendarPlaces& places, Worker& worker, Clock& clock)
    : m_worker(worker), m_clock(clock), m_paths(places.paths), m_files(std::make_shared<CalendarFiles>(places)) {
    m_watch.onChanged = [this] { fileChanged(); };
}

void CalendarFolders::fileChanged() {
    m_changes = m_clock.after(changesSettle, [this] { onChanged(); });
}

template<class Item>
Handle CalendarFolders::read(std::function<QList<Item>(CalendarFiles&)> work, Found<Item> done) {
    struct Answer {
        QList<Item> items{};
        QStringList folders{};
    };
    return onWorker<Answer>(
        m_worker,
        [files = m_files, work = std::move(work)] {
            auto items = work(*files);
            return Answer{.items = std::move(items), .folders = files->folders()};
        },
        [this, done = std::move(done)](const Answer& answer) {
            if (m_watch.set(answer.folders))
                fileChanged(); // perhaps between the look and the watch
            if (!m_watch.isComplete())
                m_again = m_clock.after(calendarsRetry, [this] { onChanged(); });
            done(answer.items);
        });
}

Handle CalendarFolders::events(WallTime from, WallTime to, Found<CalendarEvent> done) {
    return read<CalendarEvent>([from, to](CalendarFiles& files) { return files.events(from, to); }, std::move(done));
}

Handle CalendarFolders::reminders(WallTime from, WallTime to, Found<CalendarReminder> done) {
    return read<CalendarReminder>([from, to](CalendarFiles& files) { return files.reminders(from, to); },
                                  std::move(done));
}

Handle CalendarFolders::complete(const QString& reminderID, Saved done) {
    return onWorker<bool>(
        m_worker, [files = m_files, reminderID, now = m_clock.now()] { return files->complete(reminderID, now); },
        std::move(done));
}

Handle CalendarFolders::add(const QString& title, QDate due, Saved done) {
    return onWorker<bool>(
        m_worker, [files = m_files, title, due, now = m_clock.now()] { return files->add(title, due, now); },
        std::move(done));
}

} // namespace fendrel
