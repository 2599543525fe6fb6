#include "Dock/DockEdgeGuard.h"

#include "Dock/DockEdges.h"

#include <utility>

namespace fendrel {

void DockEdgeGuard::setOn(bool on) {
    if (std::exchange(m_isOn, on) != on)
        update();
}

void DockEdgeGuard::update() {
    m_retry.reset();
    if (!m_isOn) {
        m_pointer.stop();
        return;
    }
    updateEdges();
    if (m_pointer.isRunning() || m_pointer.start())
        return;
    m_retry = m_clock.every(retryInterval, retryInterval / 10, [this] {
        if (m_pointer.start())
            m_retry.reset();
    });
}

void DockEdgeGuard::updateEdges() {
    const QList<Display> displays = m_displays.all();
    if (displays.isEmpty())
        return;
    QList<GuardedEdge> edges;
    for (const Qt::Edge side : dockEdges())
        edges += guardedEdges(displays, side);
    m_pointer.setEdges(edges);
}

} // namespace fendrel
