#pragma once

#include "Base/GuardedEdge.h"
#include "Ports/Displays.h"

namespace fendrel {

/// The edges of displays where a dock at `side` would appear. Where another display adjoins there is none: the pointer
/// must pass.
QList<GuardedEdge> guardedEdges(const QList<Display>& displays, Qt::Edge side);

} // namespace fendrel
