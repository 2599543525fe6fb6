#pragma once

#include "Ports/Clock.h"
#include "Ports/Displays.h"
#include "Ports/PointerGuard.h"

#include <QList>
#include <Qt>

#include <functional>
#include <optional>

namespace fendrel {

/// Keeps the pointer off the edges where the system's dock would slide in. Main thread.
class DockEdgeGuard {
public:
    static constexpr auto retryInterval = std::chrono::seconds{3};

    DockEdgeGuard(PointerGuard& pointer, Displays& displays, Clock& clock)
        : m_pointer(pointer), m_displays(displays), m_clock(clock) {}

    /// Where the system's dock would appear, which need not be where ours is.
    std::function<QList<Qt::Edge>()> dockEdges = [] { return QList<Qt::Edge>{Qt::BottomEdge}; };

    bool isOn() const { return m_isOn; }
    bool isWorking() const { return m_pointer.isRunning(); }
    void setOn(bool on); ///< brings the pointer's guard in line; while that is refused, it is tried again
    /// After displays came, went or moved, and after the system's dock did. Without any display the old edges stay.
    void updateEdges();

private:
    void update();

    PointerGuard& m_pointer;
    Displays& m_displays;
    Clock& m_clock;
    bool m_isOn = false;
    std::optional<Handle> m_retry;
};

} // namespace fendrel
