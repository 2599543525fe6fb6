#pragma once

#include "Ports/Clock.h"

#include <QEvent>

#include <functional>
#include <memory>
#include <optional>

namespace fendrel {

/// Lets the motion of a pointer that presses nothing through once a frame: mice report up to a thousand times a second,
/// and each report is offered to every item of a window. The newest position is never lost. Main thread.
class PacedMotion {
public:
    /// `deliver` is called for what was held back, later.
    PacedMotion(Clock& clock, std::function<void(QEvent&)> deliver) : m_clock(clock), m_deliver(std::move(deliver)) {}

    /// To be asked about every event of the window; true: it is not to be handled now.
    bool holdsBack(const QEvent& event);

private:
    void wait();

    Clock& m_clock;
    std::function<void(QEvent&)> m_deliver;
    std::unique_ptr<QEvent> m_newest;
    std::optional<Handle> m_wait; ///< until the next may pass
};

} // namespace fendrel
