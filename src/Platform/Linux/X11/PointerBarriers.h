#pragma once

#include "Base/GuardedEdge.h"

#include <QList>
#include <QPoint>

#include <cstdint>

namespace fendrel {

/// A line that the X server lets no pointer cross, but in the permitted directions (as XFixes numbers them). A pointer
/// that comes from the left or from above stops one pixel before the line, one from the other side on it.
struct PointerBarrier {
    QPoint from{};
    QPoint to{}; ///< inclusive
    std::uint32_t permitted{};
    bool operator==(const PointerBarrier&) const = default;
};

/// The barriers that hold a pointer as `heldPoint` does: along each edge, and across its strip at both free ends, or
/// the pointer would slip in from the corners.
QList<PointerBarrier> barriersFor(const QList<GuardedEdge>& edges);

} // namespace fendrel
