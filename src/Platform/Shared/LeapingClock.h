#pragma once

#include "Platform/Shared/TimerQueue.h"
#include "Ports/Clock.h"

#include <memory>

namespace fendrel {

/// Another clock that can be told to leap ahead, for trying what takes minutes or hours. Nothing else does: for the
/// system and for other programs no time passes.
class LeapingClock final : public Clock {
public:
    explicit LeapingClock(std::unique_ptr<Clock> clock);

    WallTime now() const override;
    ContinuousTime continuousNow() const override;
    Handle after(Duration delay, std::function<void()> run) override;
    Handle every(Duration interval, Duration tolerance, std::function<void()> run) override;
    Handle onWallClockSet(std::function<void()> run) override;

    /// As if the machine had slept for as long: what falls due on the way runs once, before this returns.
    void leap(Duration time);

private:
    void arm();
    void fire();

    std::unique_ptr<Clock> m_clock;
    Duration m_ahead{};
    TimerQueue m_queue;
    Handle m_wakeUp;
};

} // namespace fendrel
