#pragma once

#include "Ports/Clock.h"

namespace fendrel {

/// Stands at the epoch; nothing ever falls due.
class NullClock final : public Clock {
public:
    WallTime now() const override { return {}; }
    ContinuousTime continuousNow() const override { return {}; }
    Handle after(Duration, std::function<void()>) override { return {}; }
    Handle every(Duration, Duration, std::function<void()>) override { return {}; }
    Handle onWallClockSet(std::function<void()>) override { return {}; }
};

} // namespace fendrel
