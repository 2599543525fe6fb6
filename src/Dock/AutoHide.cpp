#include "Dock/AutoHide.h"

namespace fendrel {

void AutoHide::setEnabled(bool enabled, ContinuousTime now) {
    m_isEnabled = enabled;
    settle(now);
}

void AutoHide::setPointerInside(bool inside, ContinuousTime now) {
    m_isPointerInside = inside;
    settle(now);
}

void AutoHide::setHeld(bool held, ContinuousTime now) {
    m_isHeld = held;
    settle(now);
}

void AutoHide::settle(ContinuousTime now) {
    if (!m_isEnabled || m_isPointerInside || m_isHeld) {
        m_isShown = true;
        m_hidesAt.reset();
    } else if (m_isShown && !m_hidesAt) {
        m_hidesAt = now + delay;
    }
}

void AutoHide::tick(ContinuousTime now) {
    if (m_hidesAt && now >= *m_hidesAt) {
        m_isShown = false;
        m_hidesAt.reset();
    }
}

} // namespace fendrel
