#include "Platform/Linux/Docks/DockDriver.h"

#include <utility>

namespace fendrel {

Handle DockDriver::whenStored(const DockChanges& /*changes*/, std::function<void()> run) {
    run();
    return {};
}

void DockDriver::setEdges(const QList<Qt::Edge>& ofPanels) {
    QList<Qt::Edge> edges;
    for (const Qt::Edge edge : ofPanels) {
        if (!edges.contains(edge))
            edges.append(edge);
    }
    if (std::exchange(m_edges, edges) != edges)
        onEdgesChanged();
}

} // namespace fendrel
