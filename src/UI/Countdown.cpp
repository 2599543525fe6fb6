#include "UI/Countdown.h"

#include <QCoreApplication>

#include <cmath>

namespace fendrel {

using namespace std::chrono_literals;

int secondsShown(Seconds remaining) {
    return static_cast<int>(std::ceil(remaining.count()));
}

QString remainingText(Seconds remaining) {
    const int seconds = secondsShown(remaining);
    if (seconds < 60)
        return QCoreApplication::translate("Countdown", "%1 s").arg(seconds);
    const int minutes = (seconds + 59) / 60;
    if (minutes < 60)
        return QCoreApplication::translate("Countdown", "%1 min").arg(minutes);
    return QCoreApplication::translate("Countdown", "%1 h %2 min").arg(minutes / 60).arg(minutes % 60);
}

Countdown::Countdown(Clock& clock, Unit unit, std::function<std::optional<Seconds>()> remaining,
                     std::function<void()> changed)
    : m_clock(clock), m_unit(unit), m_remaining(std::move(remaining)), m_changed(std::move(changed)) {}

void Countdown::restart() {
    m_next.reset();
    const auto remaining = m_remaining();
    if (!remaining || *remaining <= Seconds{})
        return;
    const bool isInMinutes = m_unit == Unit::minuteThenSecond && *remaining > 60s;
    const Seconds unit = isInMinutes ? Seconds(60s) : Seconds(1s);
    Seconds next{std::fmod(remaining->count(), unit.count())};
    if (next < 1ms)
        next += unit;
    m_next = m_clock.after(std::chrono::duration_cast<Clock::Duration>(next), [this] {
        m_changed();
        restart();
    });
}

} // namespace fendrel
