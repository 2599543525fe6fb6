#include "Focus/Gate.h"

namespace fendrel {

Seconds Gate::waited() const {
    return m_blocked ? Seconds(m_clock.continuousNow() - m_openedAt) : Seconds{};
}

void Gate::setReason(const QString& reason) {
    if (reason == m_reason)
        return;
    m_reason = reason;
    Q_EMIT changed();
}

void Gate::open(const Blocked& blocked) {
    if (m_blocked != blocked) {
        if (!m_blocked || m_blocked->bundleID != blocked.bundleID) {
            m_openedAt = m_clock.continuousNow();
            m_reason.clear();
        }
        m_blocked = blocked;
        Q_EMIT changed();
    }
    Q_EMIT attentionAsked();
}

void Gate::close() {
    if (!m_blocked)
        return;
    m_blocked.reset();
    m_reason.clear();
    Q_EMIT changed();
}

} // namespace fendrel
