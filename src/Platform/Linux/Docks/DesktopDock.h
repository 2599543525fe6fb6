#pragma once

#include "Platform/Linux/Desktop/BusCall.h"
#include "Platform/Linux/Docks/DockQueue.h"

#include <QDBusServiceWatcher>
#include <QObject>

#include <memory>
#include <vector>

namespace fendrel {

/// The first of several kinds of docks that runs.
class DesktopDock : public QObject, public SystemDock {
    Q_OBJECT
public:
    using Drivers = std::vector<std::unique_ptr<DockDriver>>;

    explicit DesktopDock(Drivers drivers); ///< the preferred ones first

    std::optional<QString> running() const override;
    QString name(const QString& dock) const override;
    QList<Qt::Edge> edges() const override;
    Handle read(const QString& dock, ReadDone done) override;
    Handle write(const SystemDockSettings& settings, WriteDone done) override;
    /// All of these docks take up their settings when they change.
    void restart(const QString&) override {}

private:
    const DockDriver* runningDriver() const;
    DockQueue* queueOf(const QString& dock) const;
    void setOwner(const QString& service, bool hasOwner);
    void look();

    std::vector<std::unique_ptr<DockQueue>> m_queues; ///< one each, or a dock that does not answer would hold up others
    QDBusServiceWatcher m_watcher;
    Handle m_question;
    std::optional<QString> m_running;
    QList<Qt::Edge> m_edges;
};

} // namespace fendrel
