#pragma once

#include "Ports/PointerGuard.h"

namespace fendrel {

class FakePointerGuard final : public PointerGuard {
public:
    bool isAvailable() const override { return isPermitted; }
    bool start() override {
        ++starts;
        return runs = isPermitted;
    }
    void stop() override { runs = false; }
    bool isRunning() const override { return runs; }
    void setEdges(const QList<GuardedEdge>& now) override { edges = now; }

    bool isPermitted = true;
    bool runs = false;
    int starts = 0;
    QList<GuardedEdge> edges;
};

} // namespace fendrel
