#include "Base/GuardedEdge.h"

namespace fendrel {

namespace {

std::optional<QPointF> held(QPointF pointer, const GuardedEdge& edge) {
    const bool isBottom = edge.side == GuardedEdge::Side::bottom;
    const double along = isBottom ? pointer.x() : pointer.y();
    if (along <= edge.from + GuardedEdge::freeEnds || along >= edge.to - GuardedEdge::freeEnds)
        return {};
    const double near = edge.line - GuardedEdge::margin;
    const double far = edge.line + GuardedEdge::margin;
    switch (edge.side) {
    case GuardedEdge::Side::bottom:
        return pointer.y() > near && pointer.y() <= edge.line ? std::optional(QPointF(pointer.x(), near))
                                                              : std::nullopt;
    case GuardedEdge::Side::right:
        return pointer.x() > near && pointer.x() <= edge.line ? std::optional(QPointF(near, pointer.y()))
                                                              : std::nullopt;
    case GuardedEdge::Side::left:
        break;
    }
    return pointer.x() >= edge.line && pointer.x() < far ? std::optional(QPointF(far, pointer.y())) : std::nullopt;
}

} // namespace

std::optional<QPointF> heldPoint(QPointF pointer, const QList<GuardedEdge>& edges) {
    for (const GuardedEdge& edge : edges) {
        if (const auto point = held(pointer, edge))
            return point;
    }
    return {};
}

} // namespace fendrel
