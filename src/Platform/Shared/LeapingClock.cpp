#include "Platform/Shared/LeapingClock.h"

#include <utility>

namespace fendrel {

LeapingClock::LeapingClock(std::unique_ptr<Clock> clock) : m_clock(std::move(clock)) {
    m_queue.setOnChanged([this] { arm(); });
}

WallTime LeapingClock::now() const {
    return std::chrono::floor<std::chrono::milliseconds>(m_clock->now() + m_ahead);
}

ContinuousTime LeapingClock::continuousNow() const {
    return m_clock->continuousNow() + m_ahead;
}

Handle LeapingClock::after(Duration delay, std::function<void()> run) {
    return m_queue.once(TimerQueue::later(continuousNow(), delay), std::move(run));
}

Handle LeapingClock::every(Duration interval, Duration tolerance, std::function<void()> run) {
    return m_queue.repeating(continuousNow(), interval, tolerance, std::move(run));
}

Handle LeapingClock::onWallClockSet(std::function<void()> run) {
    return m_clock->onWallClockSet(std::move(run));
}

void LeapingClock::leap(Duration time) {
    m_ahead += time;
    fire();
}

void LeapingClock::arm() {
    const auto wakeUp = m_queue.wakeUp();
    m_wakeUp = wakeUp ? m_clock->after(*wakeUp - continuousNow(), [this] { fire(); }) : Handle();
}

void LeapingClock::fire() {
    m_queue.fire(continuousNow());
    arm();
}

} // namespace fendrel
