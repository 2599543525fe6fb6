#pragma once

#include "Dock/DockEdgeGuard.h"
#include "Ports/SettingsStore.h"
#include "Ports/SystemDock.h"

#include <QObject>

#include <functional>
#include <optional>

namespace fendrel {

/// Takes the place of the system's dock: tells it to hide and keeps the pointer off its edge, and gives it back exactly
/// as the user had it. What it was like is on the disk before it is touched, and until it is given back. Main thread.
class DockReplacement : public QObject {
    Q_OBJECT
public:
    DockReplacement(SystemDock& dock, PointerGuard& pointer, Displays& displays, SettingsStore& settings, Clock& clock);

    /// Hides the dock if the user wants that; else gives back what an earlier run could not. Once, and again whenever
    /// another dock of the system's runs.
    void settle();

    bool isOn() const { return m_isOn; }
    void set(bool on);
    DockEdgeGuard& edgeGuard() { return m_edgeGuard; }
    const DockEdgeGuard& edgeGuard() const { return m_edgeGuard; }

    bool owesDock() const { return saved().has_value(); } ///< one of the system's is hidden, and to be given back

    /// The dock that there is to replace, as in the middle of a sentence; empty when there is none.
    QString dockName() const;

    /// For the end of the program: gives the dock back, and the next start replaces it again. `done` follows when that
    /// is over, or after a while.
    void stop(std::function<void()> done);

Q_SIGNALS:
    void changed(); ///< on or off, or another dock runs

private:
    using Settings = SystemDockSettings;

    void hideDock();
    void save(const Settings& current);
    void hideSaved(const Settings& current);
    void restoreDock(std::function<void()> done = [] {});
    void showLeftover();
    void watch(const QString& dock, std::size_t attempt);
    bool isSpaceHeld() const;
    std::optional<Settings> saved() const;
    void clearSaved();
    void setAside();
    std::optional<Settings> takeAside(const QString& dock);

    SystemDock& m_dock;
    Displays& m_displays;
    SettingsStore& m_settings;
    Clock& m_clock;
    DockEdgeGuard m_edgeGuard;
    bool m_isOn;
    Handle m_step;  ///< what is being asked, written or waited for; a new wish takes its place
    Handle m_watch; ///< looks whether the dock did go
    Handle m_patience;
    bool m_isStopping = false;
};

} // namespace fendrel
