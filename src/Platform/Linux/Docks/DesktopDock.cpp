#include "Platform/Linux/Docks/DesktopDock.h"

#include "Base/Log.h"
#include "Platform/Shared/AtNextTurn.h"

#include <QDBusConnection>
#include <QDBusReply>

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// An answer that is given unless its handle was dropped.
template<class Done>
Handle handleOf(const std::shared_ptr<Done>& kept) {
    return Handle([kept] { *kept = {}; });
}

template<class Done, class Value>
void answer(const std::shared_ptr<Done>& kept, const Value& value) {
    if (const auto done = std::exchange(*kept, {}))
        done(value);
}

} // namespace

DesktopDock::DesktopDock(Drivers drivers) : m_drivers(std::move(drivers)) {
    m_watcher.setConnection(QDBusConnection::sessionBus());
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    for (const auto& each : m_drivers) {
        each->onEdgesChanged = [this] { look(); };
        m_watcher.addWatchedService(each->service());
    }
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this,
            [this](const QString& service) { setOwner(service, true); });
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString& service) { setOwner(service, false); });
    const QString bus = u"org.freedesktop.DBus"_s;
    m_question = callOnBus(QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, u"ListNames"_s), {},
                           [this](const QDBusMessage& reply) {
                               const auto names = QDBusReply<QStringList>(reply).value();
                               for (const QString& name : names)
                                   setOwner(name, true);
                           });
}

void DesktopDock::setOwner(const QString& service, bool hasOwner) {
    for (const auto& each : m_drivers) {
        if (each->service() == service)
            each->setRunning(hasOwner);
    }
}

void DesktopDock::look() {
    const DockDriver* first = runningDriver();
    const auto running = first != nullptr ? std::optional(first->dock()) : std::nullopt;
    const bool isOther = std::exchange(m_running, running) != running;
    const auto edges = first != nullptr ? first->edges() : QList<Qt::Edge>();
    const bool isElsewhere = std::exchange(m_edges, edges) != edges;
    if (isElsewhere)
        onEdgesChanged();
    if (isOther)
        onRunningChanged();
}

DockDriver* DesktopDock::runningDriver() const {
    const auto found = std::ranges::find_if(m_drivers, [](const auto& each) { return !each->edges().isEmpty(); });
    return found == m_drivers.end() ? nullptr : found->get();
}

DockDriver* DesktopDock::driver(const QString& dock) const {
    const auto found = std::ranges::find(m_drivers, dock, [](const auto& each) { return each->dock(); });
    return found == m_drivers.end() ? nullptr : found->get();
}

std::optional<QString> DesktopDock::running() const {
    return m_running;
}

QString DesktopDock::name(const QString& dock) const {
    const DockDriver* found = driver(dock);
    return found != nullptr ? found->name() : dock;
}

QList<Qt::Edge> DesktopDock::edges() const {
    return m_edges;
}

Handle DesktopDock::read(const QString& dock, ReadDone done) {
    const auto kept = std::make_shared<ReadDone>(std::move(done));
    queue([this, dock, kept] {
        DockDriver* const found = driver(dock);
        const auto give = [this, dock, kept](const std::optional<QList<DockSetting>>& now) {
            answer(kept, now ? std::optional(settingsOf(dock, *now)) : std::nullopt);
            proceed();
        };
        if (found == nullptr)
            give({});
        else
            m_reading = found->read({}, give);
    });
    return handleOf(kept);
}

Handle DesktopDock::write(const SystemDockSettings& settings, WriteDone done) {
    const auto kept = std::make_shared<WriteDone>(std::move(done));
    queue([this, settings, kept] {
        DockDriver* const found = driver(settings.dock);
        const auto give = [this, kept, dock = settings.dock](bool isWritten) {
            if (!isWritten)
                qCWarning(logDesktop) << "Couldn't change the settings of the dock" << dock;
            answer(kept, isWritten);
            proceed();
        };
        if (found == nullptr)
            return give(false);
        m_reading = found->read(settings.details, [=, this](const std::optional<QList<DockSetting>>& now) {
            if (now)
                m_changing = found->change(changesTo(settings, *now), give);
            else
                give(false);
        });
    });
    return handleOf(kept);
}

void DesktopDock::queue(Job job) {
    m_jobs.append(std::move(job));
    if (!std::exchange(m_isBusy, true))
        proceed();
}

void DesktopDock::proceed() {
    // At the next turn: answers never come from inside the call, and what runs now may be what the handle holds.
    m_next = atNextTurn([this] {
        if (m_jobs.isEmpty())
            m_isBusy = false;
        else
            m_jobs.takeFirst()();
    });
}

} // namespace fendrel
