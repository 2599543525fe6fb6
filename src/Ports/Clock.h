#pragma once

#include "Base/Handle.h"
#include "Base/WallTime.h"

#include <chrono>
#include <functional>

namespace fendrel {

/// Counts evenly while the system runs and while it sleeps; setting the wall clock does not touch it.
struct ContinuousClock {
    using duration = std::chrono::nanoseconds;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<ContinuousClock>;
    static constexpr bool is_steady = true;
};

using ContinuousTime = ContinuousClock::time_point;

/// The only source of time. Callbacks run on the main thread, never from inside `after` or `every`.
class Clock {
public:
    using Duration = std::chrono::nanoseconds;

    virtual ~Clock() = default;

    virtual WallTime now() const = 0;
    virtual ContinuousTime continuousNow() const = 0;

    /// Runs once when `delay` has passed on the continuous clock; a delay of zero or less runs at the next turn.
    virtual Handle after(Duration delay, std::function<void()> run) = 0;

    /// Runs again and again. Each run may come up to `tolerance` late, so that runs that fall close together share
    /// one wake-up. Runs that were missed (the machine slept) are not made up for.
    virtual Handle every(Duration interval, Duration tolerance, std::function<void()> run) = 0;

    /// Runs when somebody sets the wall clock, and on waking from sleep where the system reports that the same way.
    virtual Handle onWallClockSet(std::function<void()> run) = 0;
};

} // namespace fendrel
