#pragma once

#include <QList>
#include <QPointF>

#include <optional>

namespace fendrel {

/// An edge of a display that the pointer is kept off. The origin is at the top left, y grows downward.
struct GuardedEdge {
    enum class Side { bottom, left, right };

    static constexpr double margin = 3;    ///< the pointer comes no closer than this
    static constexpr double freeEnds = 24; ///< of the edge at both ends, where corners keep working

    Side side{};
    double line{}; ///< y of a bottom edge, x of the others; of a bottom or right edge one past the last pixel
    double from{}; ///< the display's extent along the edge
    double to{};
    bool operator==(const GuardedEdge&) const = default;
};

/// Where a pointer has to go that came too close to an edge, the first that it is at; nothing when it may stay.
std::optional<QPointF> heldPoint(QPointF pointer, const QList<GuardedEdge>& edges);

} // namespace fendrel
