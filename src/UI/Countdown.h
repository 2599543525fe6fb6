#pragma once

#include "Base/Seconds.h"
#include "Ports/Clock.h"

#include <QString>

#include <functional>

namespace fendrel {

/// Whole seconds left, as shown while counting down: never 0 before the end.
int secondsShown(Seconds remaining);

/// A remaining time for people: "2 h 5 min", "24 min", "45 s".
QString remainingText(Seconds remaining);

/// Calls back each time the text of a remaining time changes, and not in between.
class Countdown {
public:
    enum class Unit {
        second,
        minuteThenSecond, ///< minutes as long as more than one is left
    };

    Countdown(Clock& clock, Unit unit, std::function<std::optional<Seconds>()> remaining,
              std::function<void()> changed);

    void restart(); ///< to be called when what counts down starts, ends or gets another end

private:
    Clock& m_clock;
    Unit m_unit;
    std::function<std::optional<Seconds>()> m_remaining;
    std::function<void()> m_changed;
    Handle m_next;
};

} // namespace fendrel
