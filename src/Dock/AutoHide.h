#pragma once

#include "Ports/Clock.h"

#include <optional>

namespace fendrel {

/// Whether the dock of one display shows. A dock that hides by itself shows while the pointer is at its edge or over
/// it, and a moment longer, and while something holds it (an open menu). Under a full-screen window
/// none does.
class AutoHide {
public:
    static constexpr auto delay = std::chrono::milliseconds{450}; ///< after the pointer left

    bool isShown() const { return m_isShown && !m_isCovered; }
    /// Whether time alone can change the answer: only then are ticks needed.
    bool isWaiting() const { return m_hidesAt.has_value(); }

    void setEnabled(bool enabled, ContinuousTime now);
    void setPointerInside(bool inside, ContinuousTime now);
    void setHeld(bool held, ContinuousTime now);
    void setCovered(bool covered) { m_isCovered = covered; } ///< by a full-screen window
    void tick(ContinuousTime now);

private:
    void settle(ContinuousTime now);

    bool m_isEnabled = false;
    bool m_isPointerInside = false;
    bool m_isHeld = false;
    bool m_isCovered = false;
    bool m_isShown = true;
    std::optional<ContinuousTime> m_hidesAt;
};

} // namespace fendrel
