#pragma once

#include "Ports/Clock.h"

#include <QHoverEvent>

#include <functional>
#include <memory>
#include <optional>

namespace fendrel {

/// Lets the motion of a pointer that presses nothing through once a frame: mice report up to a thousand times a second,
/// and each report is offered to every item of a window. Where something else moves too, it shares that frame. The
/// newest position is never lost. Main thread.
class PacedMotion {
public:
    /// `deliver` gives one to the window.
    PacedMotion(Clock& clock, std::function<void(QHoverEvent&)> deliver)
        : m_clock(clock), m_deliver(std::move(deliver)) {}

    /// To be asked about every event of the window; true: the window is not to see it.
    bool takes(const QEvent& event);

private:
    void deliver();

    Clock& m_clock;
    std::function<void(QHoverEvent&)> m_deliver;
    std::unique_ptr<QHoverEvent> m_newest;
    ContinuousTime m_delivered;
    std::optional<Handle> m_wait; ///< until the next may pass
};

} // namespace fendrel
