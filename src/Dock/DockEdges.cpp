#include "Dock/DockEdges.h"

#include <algorithm>

namespace fendrel {

namespace {

struct Candidate {
    GuardedEdge edge{};
    QPoint probe{}; ///< just beyond the middle of the edge
};

Candidate candidate(const QRect& frame, Qt::Edge side) {
    using Side = GuardedEdge::Side;
    const double left = frame.x();
    const double top = frame.y();
    const double right = left + frame.width();
    const double bottom = top + frame.height();
    const QPoint middle = frame.center();
    switch (side) {
    case Qt::LeftEdge:
        return {{.side = Side::left, .line = left, .from = top, .to = bottom}, {frame.left() - 1, middle.y()}};
    case Qt::RightEdge:
        return {{.side = Side::right, .line = right, .from = top, .to = bottom}, {frame.right() + 1, middle.y()}};
    default:
        return {{.side = Side::bottom, .line = bottom, .from = left, .to = right}, {middle.x(), frame.bottom() + 1}};
    }
}

} // namespace

QList<GuardedEdge> guardedEdges(const QList<Display>& displays, Qt::Edge side) {
    QList<GuardedEdge> edges;
    for (const Display& display : displays) {
        const auto [edge, probe] = candidate(display.frame, side);
        const bool adjoins = std::ranges::any_of(
            displays, [&point = probe](const Display& other) { return other.frame.contains(point); });
        if (!adjoins)
            edges.append(edge);
    }
    return edges;
}

} // namespace fendrel
