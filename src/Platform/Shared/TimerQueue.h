#pragma once

#include "Ports/Clock.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace fendrel {

/// Which timer runs when. Knows no clock: whoever owns it says what time it is. A callback may drop its own or
/// another handle, start timers, or destroy what owns them and this queue too. Handles may outlive the queue.
class TimerQueue {
public:
    TimerQueue() = default;
    TimerQueue(const TimerQueue&) = delete;
    TimerQueue& operator=(const TimerQueue&) = delete;
    ~TimerQueue() { m_state->onChanged = {}; } // a callback that runs now may still hold the state

    /// Runs after a timer was added or cancelled from outside of `fire`, so that the owner can wait for another
    /// moment.
    void setOnChanged(std::function<void()> onChanged) { m_state->onChanged = std::move(onChanged); }

    Handle once(ContinuousTime due, std::function<void()> run) {
        return add({due, due, {}, {}, std::make_shared<std::function<void()>>(std::move(run))});
    }

    /// First at `start` + `interval`, then in step with that. An interval under a millisecond counts as one.
    Handle repeating(ContinuousTime start, Clock::Duration interval, Clock::Duration tolerance,
                     std::function<void()> run) {
        const auto step = std::max(interval, Clock::Duration(std::chrono::milliseconds(1)));
        const auto slack = std::max(tolerance, Clock::Duration::zero());
        const auto due = later(start, step);
        return add({due, later(due, slack), step, slack, std::make_shared<std::function<void()>>(std::move(run))});
    }

    /// The latest moment that serves every timer in time.
    std::optional<ContinuousTime> wakeUp() const {
        std::optional<ContinuousTime> earliest;
        for (const auto& [id, timer] : m_state->timers) {
            if (!earliest || timer.latest < *earliest)
                earliest = timer.latest;
        }
        return earliest;
    }

    std::optional<ContinuousTime> earliestDue() const {
        std::optional<ContinuousTime> earliest;
        for (const auto& [id, timer] : m_state->timers) {
            if (!earliest || timer.due < *earliest)
                earliest = timer.due;
        }
        return earliest;
    }

    std::size_t size() const { return m_state->timers.size(); }

    /// Runs what is due at `now`, earliest first, those of one moment in their order of creation. A timer that
    /// a callback starts waits for the next call, so that two that start each other cannot hold the program up.
    void fire(ContinuousTime now) {
        const auto state = m_state;
        const auto end = state->nextId;
        while (const auto run = state->takeDue(now, end))
            (*run)();
    }

    /// `time` + `delay`, without overflow, and never before `time`.
    static ContinuousTime later(ContinuousTime time, Clock::Duration delay) {
        if (delay <= Clock::Duration::zero())
            return time;
        return delay < ContinuousTime::max() - time ? time + delay : ContinuousTime::max();
    }

private:
    struct Timer {
        ContinuousTime due{};
        ContinuousTime latest{};
        std::optional<Clock::Duration> interval{};
        Clock::Duration tolerance{};
        std::shared_ptr<std::function<void()>> run{};
    };

    struct State {
        std::map<std::uint64_t, Timer> timers; // few enough that looking through them beats a second index
        std::uint64_t nextId = 0;
        std::function<void()> onChanged;

        void changed() const {
            if (onChanged)
                onChanged();
        }

        std::shared_ptr<std::function<void()>> takeDue(ContinuousTime now, std::uint64_t end) {
            auto next = timers.end();
            for (auto timer = timers.begin(); timer != timers.end() && timer->first < end; ++timer) {
                if (timer->second.due <= now && (next == timers.end() || timer->second.due < next->second.due))
                    next = timer;
            }
            if (next == timers.end())
                return {};
            auto run = next->second.run;
            if (auto& timer = next->second; timer.interval) {
                const auto stepsMissed = (now - timer.due) / *timer.interval;
                timer.due = later(timer.due + stepsMissed * *timer.interval, *timer.interval);
                timer.latest = later(timer.due, timer.tolerance);
            } else {
                timers.erase(next);
            }
            return run;
        }
    };

    Handle add(Timer timer) {
        const auto id = m_state->nextId++;
        m_state->timers.emplace(id, std::move(timer));
        m_state->changed();
        return Handle([state = std::weak_ptr(m_state), id] {
            const auto alive = state.lock();
            if (alive && alive->timers.erase(id) > 0)
                alive->changed();
        });
    }

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace fendrel
