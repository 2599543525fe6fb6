#include "Platform/Linux/Docks/DesktopDock.h"

#include "Platform/Shared/AtNextTurn.h"

#include <QDBusConnection>
#include <QDBusReply>

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

DesktopDock::DesktopDock(Drivers drivers) {
    m_watcher.setConnection(QDBusConnection::sessionBus());
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    for (auto& each : drivers) {
        each->onEdgesChanged = [this] { look(); };
        m_watcher.addWatchedService(each->service());
        m_queues.push_back(std::make_unique<DockQueue>(std::move(each)));
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
    for (const auto& each : m_queues) {
        if (each->driver().service() == service)
            each->driver().setRunning(hasOwner);
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

const DockDriver* DesktopDock::runningDriver() const {
    const auto found =
        std::ranges::find_if(m_queues, [](const auto& each) { return !each->driver().edges().isEmpty(); });
    return found == m_queues.end() ? nullptr : &(*found)->driver();
}

DockQueue* DesktopDock::queueOf(const QString& dock) const {
    const auto found = std::ranges::find(m_queues, dock, [](const auto& each) { return each->driver().dock(); });
    return found == m_queues.end() ? nullptr : found->get();
}

std::optional<QString> DesktopDock::running() const {
    return m_running;
}

QString DesktopDock::name(const QString& dock) const {
    const DockQueue* found = queueOf(dock);
    return found != nullptr ? found->driver().name() : dock;
}

QList<Qt::Edge> DesktopDock::edges() const {
    return m_edges;
}

Handle DesktopDock::read(const QString& dock, ReadDone done) {
    if (DockQueue* const found = queueOf(dock))
        return found->read(std::move(done));
    return atNextTurn([done = std::move(done)] { done({}); });
}

Handle DesktopDock::write(const SystemDockSettings& settings, WriteDone done) {
    if (DockQueue* const found = queueOf(settings.dock))
        return found->write(settings, std::move(done));
    return atNextTurn([done = std::move(done)] { done(false); });
}

} // namespace fendrel
