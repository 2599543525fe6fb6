#include "Platform/Linux/X11/PointerBarriers.h"

#include <xcb/xfixes.h>

namespace fendrel {

namespace {

using Side = GuardedEdge::Side;

constexpr std::uint32_t left = XCB_XFIXES_BARRIER_DIRECTIONS_NEGATIVE_X;
constexpr std::uint32_t right = XCB_XFIXES_BARRIER_DIRECTIONS_POSITIVE_X;
constexpr std::uint32_t up = XCB_XFIXES_BARRIER_DIRECTIONS_NEGATIVE_Y;
constexpr std::uint32_t down = XCB_XFIXES_BARRIER_DIRECTIONS_POSITIVE_Y;

std::uint32_t awayFrom(Side side) {
    return side == Side::bottom ? up : side == Side::left ? right : left;
}

void append(QList<PointerBarrier>& barriers, const GuardedEdge& edge) {
    const bool isBottom = edge.side == Side::bottom;
    const auto at = [&](double along, double across) {
        return isBottom ? QPoint(qRound(along), qRound(across)) : QPoint(qRound(across), qRound(along));
    };
    // The pointer is held at the margin: one pixel before the barrier, or on one that it meets from the other side.
    const bool isLeft = edge.side == Side::left;
    const double held = isLeft ? edge.line + GuardedEdge::margin : edge.line - GuardedEdge::margin + 1;
    const double firstFree = edge.from + GuardedEdge::freeEnds; // the last free place before the guarded ones
    const double lastFree = edge.to - GuardedEdge::freeEnds;
    if (lastFree - firstFree < 2)
        return; // nothing of so short an edge is guarded
    barriers.append({at(firstFree + 1, held), at(lastFree - 1, held), awayFrom(edge.side)});

    const double inner = isLeft ? held - 1 : held;
    barriers.append({at(firstFree + 1, inner), at(firstFree + 1, edge.line), isBottom ? left : up});
    barriers.append({at(lastFree, inner), at(lastFree, edge.line), isBottom ? right : down});
}

} // namespace

QList<PointerBarrier> barriersFor(const QList<GuardedEdge>& edges) {
    QList<PointerBarrier> barriers;
    for (const GuardedEdge& edge : edges)
        append(barriers, edge);
    return barriers;
}

} // namespace fendrel
