#pragma once

#include "Platform/Shared/Listeners.h"
#include "Platform/Shared/TimerQueue.h"
#include "Ports/Clock.h"

namespace fendrel {

/// Time moves only when the test says so. Starts on Monday 2026-01-05 at 09:00 UTC.
class FakeClock final : public Clock {
public:
    WallTime now() const override { return std::chrono::floor<std::chrono::milliseconds>(m_wall); }
    ContinuousTime continuousNow() const override { return m_now; }

    Handle after(Duration delay, std::function<void()> run) override {
        return m_queue.once(TimerQueue::later(m_now, delay), std::move(run));
    }
    Handle every(Duration interval, Duration tolerance, std::function<void()> run) override {
        return m_queue.repeating(m_now, interval, tolerance, std::move(run));
    }
    Handle onWallClockSet(std::function<void()> run) override { return m_wallClockSet.add(std::move(run)); }

    /// Both clocks move on. Whatever falls due on the way runs at its own moment, without lateness.
    void advance(Duration duration) {
        const auto target = m_now + duration;
        for (auto due = m_queue.earliestDue(); due && *due <= target; due = m_queue.earliestDue()) {
            if (*due > m_now)
                moveOn(*due - m_now);
            m_queue.fire(m_now);
        }
        moveOn(target - m_now);
    }

    /// The machine sleeps: time passes in one leap, and what fell due meanwhile runs once on waking.
    void sleep(Duration duration) {
        moveOn(duration);
        m_wallClockSet.forEach([](const auto& run) { run(); });
        m_queue.fire(m_now);
    }

    /// Somebody sets the wall clock. The continuous clock does not notice.
    void setNow(WallTime now) {
        m_wall = now;
        m_wallClockSet.forEach([](const auto& run) { run(); });
    }

    std::size_t pending() const { return m_queue.size(); } ///< timers that are under way

private:
    void moveOn(Duration duration) {
        m_now += duration;
        m_wall += duration;
    }

    ContinuousTime m_now{std::chrono::hours(1)};
    std::chrono::sys_time<Duration> m_wall =
        std::chrono::sys_days(std::chrono::January / 5 / 2026) + std::chrono::hours(9);
    TimerQueue m_queue;
    Listeners<std::function<void()>> m_wallClockSet;
};

} // namespace fendrel
