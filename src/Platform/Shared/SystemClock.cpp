#include "Platform/Shared/SystemClock.h"

#include "Base/Log.h"

#include <QtGlobal>

#include <sys/timerfd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <limits>

namespace fendrel {

namespace {

FileDescriptor makeTimer(clockid_t clock) {
    FileDescriptor timer(timerfd_create(clock, TFD_NONBLOCK | TFD_CLOEXEC));
    if (!timer)
        qFatal("No timer to be had from the kernel: %s", std::strerror(errno));
    return timer;
}

itimerspec momentOf(std::optional<ContinuousTime> time) {
    itimerspec setting{};
    if (time) {
        const auto seconds = std::chrono::floor<std::chrono::seconds>(time->time_since_epoch());
        setting.it_value.tv_sec = seconds.count();
        setting.it_value.tv_nsec = (time->time_since_epoch() - seconds).count();
    }
    return setting;
}

} // namespace

SystemClock::SystemClock()
    : m_timer(makeTimer(CLOCK_BOOTTIME)),
      m_timerNotifier(m_timer.get(), QSocketNotifier::Read),
      m_wallClockWatch(makeTimer(CLOCK_REALTIME)),
      m_wallClockNotifier(m_wallClockWatch.get(), QSocketNotifier::Read) {
    m_queue.setOnChanged([this] { arm(); });
    QObject::connect(&m_timerNotifier, &QSocketNotifier::activated, &m_timerNotifier, [this] { fire(); });
    watchWallClock();
    QObject::connect(&m_wallClockNotifier, &QSocketNotifier::activated, &m_wallClockNotifier,
                     [this] { readWallClockWatch(); });
}

WallTime SystemClock::now() const {
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

ContinuousTime SystemClock::continuousNow() const {
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return ContinuousTime(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

Handle SystemClock::after(Duration delay, std::function<void()> run) {
    return m_queue.once(TimerQueue::later(continuousNow(), delay), std::move(run));
}

Handle SystemClock::every(Duration interval, Duration tolerance, std::function<void()> run) {
    return m_queue.repeating(continuousNow(), interval, tolerance, std::move(run));
}

Handle SystemClock::onWallClockSet(std::function<void()> run) {
    return m_wallClockSet.add(std::move(run));
}

void SystemClock::arm() {
    const auto wakeUp = m_queue.wakeUp();
    if (wakeUp == m_armedFor)
        return;
    const auto setting = momentOf(wakeUp);
    if (timerfd_settime(m_timer.get(), TFD_TIMER_ABSTIME, &setting, nullptr) == 0)
        m_armedFor = wakeUp;
    else
        qCCritical(logApp, "Couldn't set the timer: %s", std::strerror(errno));
}

void SystemClock::fire() {
    std::uint64_t expirations = 0;
    if (read(m_timer.get(), &expirations, sizeof expirations) != sizeof expirations)
        return; // set to another moment after it had woken us up
    m_armedFor.reset();
    m_queue.fire(continuousNow());
    arm();
}

void SystemClock::watchWallClock() {
    // Never due: it ends only by being cancelled, which is how the kernel tells that the clock was set.
    itimerspec never{};
    never.it_value.tv_sec = std::numeric_limits<time_t>::max();
    if (timerfd_settime(m_wallClockWatch.get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &never, nullptr) != 0)
        qCCritical(logApp, "Changes of the wall clock will not be noticed: %s", std::strerror(errno));
}

void SystemClock::readWallClockWatch() {
    std::uint64_t expirations = 0;
    if (read(m_wallClockWatch.get(), &expirations, sizeof expirations) >= 0 || errno != ECANCELED)
        return;
    watchWallClock();
    m_wallClockSet.forEach([](const auto& run) { run(); });
}

} // namespace fendrel
