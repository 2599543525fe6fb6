#pragma once

#include "Base/GuardedEdge.h"

#include <QList>

namespace fendrel {

/// Keeps the pointer off edges of displays, so that what waits there does not slide in. Main thread; the pointer is
/// held on a thread of its own.
class PointerGuard {
public:
    virtual ~PointerGuard() = default;    ///< stops
    virtual bool isAvailable() const = 0; ///< whether this system lets the pointer be held at all
    virtual bool start() = 0;             ///< false: not permitted, or not possible on this system
    virtual void stop() = 0;
    virtual bool isRunning() const = 0; ///< can end by itself, as when the system takes the permission away
    /// May be told before it starts. Holds the pointer as `heldPoint` says.
    virtual void setEdges(const QList<GuardedEdge>& edges) = 0;
};

} // namespace fendrel
