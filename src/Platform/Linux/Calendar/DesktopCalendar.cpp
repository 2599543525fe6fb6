#include "Platform/Linux/Calendar/DesktopCalendar.h"

#include "Base/OnWorker.h"
#include "Platform/Linux/Calendar/CalendarFolders.h"
#include "Platform/Linux/Calendar/EvolutionCalendars.h"
#include "Platform/Linux/Desktop/BusCall.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

DesktopCalendar::DesktopCalendar(Clock& clock, std::function<CalendarPlaces()> places)
    : m_clock(clock), m_places(std::move(places)) {}

DesktopCalendar::~DesktopCalendar() {
    drop();
}

CalendarPlaces DesktopCalendar::standardPlaces() {
    return usualCalendarPlaces(QDir::homePath(),
                               QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                               QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

void DesktopCalendar::choose(const CalendarChoice& choice) {
    if (choice == m_choice)
        return;
    m_choice = choice;
    drop();
    m_hasLooked = false;
    m_looking.reset();
    if (!m_waiting.empty())
        look();
    m_news = m_clock.after({}, [this] { onChanged(); });
}

CalendarStore::Access DesktopCalendar::access(Kind) const {
    if (m_source)
        return Access::granted;
    return m_hasLooked ? Access::missing : Access::unknown;
}

void DesktopCalendar::requestAccess(Kind) {
    if (!m_source)
        look();
}

void DesktopCalendar::Question::putTo(CalendarSource* source) {
    if (isWanted || kept == Kept::yes)
        answer = put(source);
    if (!isWanted)
        answer.reset();
}

Handle DesktopCalendar::ask(Kept kept, std::function<Handle(CalendarSource*)> put) {
    const auto question = std::make_shared<Question>(Question{.put = std::move(put), .kept = kept, .answer = {}});
    if (m_source) {
        m_put.remove_if([](const auto& each) { return each.expired(); });
        m_put.push_back(question);
        question->putTo(m_source.get());
    } else {
        m_waiting.push_back(question);
        if (m_waiting.size() == 1)
            look();
    }
    return Handle([question] {
        question->isWanted = false;
        question->answer.reset();
    });
}

void DesktopCalendar::drop() {
    for (const auto& each : std::exchange(m_put, {}))
        if (const auto question = each.lock())
            question->answer = question->isWanted && question->kept == Kept::yes ? question->put(nullptr) : Handle();
    m_source.reset();
}

void DesktopCalendar::look() {
    if (!m_choice.folder.isEmpty())
        return lookForFolders();
    const QString daemon = u"org.freedesktop.DBus"_s;
    const auto question = [daemon](const QString& method) {
        return QDBusMessage::createMethodCall(daemon, u"/org/freedesktop/DBus"_s, daemon, method);
    };
    const auto has = [](const QDBusMessage& reply) {
        return reply.arguments().value(0).toStringList().contains(EvolutionCalendars::registry);
    };
    m_looking =
        callOnBus(question(u"ListActivatableNames"_s), {}, [this, question, has](const QDBusMessage& startable) {
            m_looking = callOnBus(question(u"ListNames"_s), {}, [this, has, startable](const QDBusMessage& running) {
                if (!has(startable) && !has(running))
                    return lookForFolders();
                if (!m_worker)
                    m_worker.emplace(u"calendar"_s);
                use(std::make_unique<EvolutionCalendars>(*m_worker, m_clock));
            });
        });
}

void DesktopCalendar::lookForFolders() {
    if (!m_worker)
        m_worker.emplace(u"calendar"_s);
    const auto find = [places = m_places, chosen = m_choice.folder] {
        CalendarPlaces found = places();
        if (!chosen.isEmpty())
            found.paths = QFileInfo::exists(chosen) ? QStringList{QDir::cleanPath(chosen)} : QStringList();
        return found;
    };
    m_looking = onWorker<CalendarPlaces>(*m_worker, find, [this](const CalendarPlaces& found) {
        use(found.paths.isEmpty() ? nullptr : std::make_unique<CalendarFolders>(found, *m_worker, m_clock));
    });
}

void DesktopCalendar::use(std::unique_ptr<CalendarSource> source) {
    const bool isNews = !m_hasLooked || source != nullptr;
    m_hasLooked = true;
    m_source = std::move(source);
    if (m_source) {
        m_source->onChanged = [this] { onChanged(); };
        m_source->onGone = [this] {
            m_news = m_clock.after({}, [this] {
                drop();
                onChanged();
            });
        };
    }
    for (const auto waiting = std::exchange(m_waiting, {}); const auto& each : waiting) {
        m_put.push_back(each);
        each->putTo(m_source.get());
    }
    if (isNews)
        onChanged();
}

Handle DesktopCalendar::events(WallTime from, WallTime to, Found<CalendarEvent> done) {
    return ask(Kept::no, [this, from, to, done = std::move(done)](CalendarSource* source) {
        return source ? source->events(from, to, done) : m_clock.after({}, [done] {
            done(Result<QList<CalendarEvent>, Access>::failure(Access::missing));
        });
    });
}

Handle DesktopCalendar::reminders(WallTime from, WallTime to, Found<CalendarReminder> done) {
    return ask(Kept::no, [this, from, to, done = std::move(done)](CalendarSource* source) {
        return source ? source->reminders(from, to, done) : m_clock.after({}, [done] {
            done(Result<QList<CalendarReminder>, Access>::failure(Access::missing));
        });
    });
}

Handle DesktopCalendar::save(Saved done, std::function<Handle(CalendarSource&, Saved)> put) {
    const auto once = [waiting = std::make_shared<Saved>(std::move(done))](bool isSaved) {
        if (const auto told = std::exchange(*waiting, {}))
            told(isSaved);
    };
    return ask(Kept::yes, [this, once, put = std::move(put)](CalendarSource* source) {
        return source ? put(*source, once) : m_clock.after({}, [once] { once(false); });
    });
}

Handle DesktopCalendar::complete(const QString& reminderID, Saved done) {
    return save(std::move(done), [reminderID](CalendarSource& source, Saved saved) {
        return source.complete(reminderID, std::move(saved));
    });
}

Handle DesktopCalendar::add(const QString& title, QDate due, Saved done) {
    return save(std::move(done),
                [title, due](CalendarSource& source, Saved saved) { return source.add(title, due, std::move(saved)); });
}

} // namespace fendrel
