#pragma once

#include "Ports/PointerGuard.h"

namespace fendrel {

class NullPointerGuard final : public PointerGuard {
public:
    bool isAvailable() const override { return false; }
    bool start() override { return false; }
    void stop() override {}
    bool isRunning() const override { return false; }
    void setEdges(const QList<GuardedEdge>&) override {}
};

} // namespace fendrel
