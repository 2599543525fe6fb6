#pragma once

#include "Platform/Linux/Desktop/BusCall.h"
#include "Platform/Linux/Docks/DockDriver.h"

#include <QDBusServiceWatcher>
#include <QObject>

#include <memory>
#include <vector>

namespace fendrel {

/// The first of several kinds of docks that runs. Settings are read and changed one call after the other.
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
    using Job = std::function<void()>; ///< calls proceed() at its end

    DockDriver* driver(const QString& dock) const;
    DockDriver* runningDriver() const;
    void setOwner(const QString& service, bool hasOwner);
    void look();
    void queue(Job job);
    void proceed();

    Drivers m_drivers;
    QDBusServiceWatcher m_watcher;
    Handle m_question;
    std::optional<QString> m_running;
    QList<Qt::Edge> m_edges;
    QList<Job> m_jobs;
    bool m_isBusy = false;
    Handle m_next;
    Handle m_reading;
    Handle m_changing;
};

} // namespace fendrel
