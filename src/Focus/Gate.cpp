#include "Focus/Gate.h"

namespace fendrel {

namespace {

/// Another process of the same application is the same thing to its user.
bool isSameThing(const Gate::Blocked& one, const Gate::Blocked& other) {
    if (one.app() && other.app())
        return one.app()->bundleID == other.app()->bundleID;
    return one.subject == other.subject;
}

} // namespace

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
        if (!m_blocked || !isSameThing(*m_blocked, blocked)) {
            m_openedAt = m_clock.continuousNow();
            m_reason.clear();
        }
        m_blocked = blocked;
        Q_EMIT changed();
    }
    Q_EMIT attentionAsked();
}

void Gate::withdraw() {
    if (const auto blocked = m_blocked) {
        close();
        onWithdrawn(*blocked);
    }
}

void Gate::close() {
    if (!m_blocked)
        return;
    m_blocked.reset();
    m_reason.clear();
    Q_EMIT changed();
}

} // namespace fendrel
