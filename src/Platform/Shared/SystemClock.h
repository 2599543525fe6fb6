#pragma once

#include "Base/FileDescriptor.h"
#include "Platform/Shared/Listeners.h"
#include "Platform/Shared/TimerQueue.h"
#include "Ports/Clock.h"

#include <QSocketNotifier>

#include <functional>
#include <optional>

namespace fendrel {

/// The machine's clocks, in the event loop of the thread that makes it. All timers share one timer of the
/// kernel, so that the process wakes up only when something is due. A machine that sleeps is not woken.
class SystemClock final : public Clock {
public:
    SystemClock();

    WallTime now() const override;
    ContinuousTime continuousNow() const override;
    Handle after(Duration delay, std::function<void()> run) override;
    Handle every(Duration interval, Duration tolerance, std::function<void()> run) override;
    Handle onWallClockSet(std::function<void()> run) override;

private:
    void arm();
    void fire();
    void watchWallClock();
    void readWallClockWatch();

    TimerQueue m_queue;
    std::optional<ContinuousTime> m_armedFor;
    FileDescriptor m_timer;
    QSocketNotifier m_timerNotifier;

    Listeners<std::function<void()>> m_wallClockSet;
    FileDescriptor m_wallClockWatch;
    QSocketNotifier m_wallClockNotifier;
};

} // namespace fendrel
