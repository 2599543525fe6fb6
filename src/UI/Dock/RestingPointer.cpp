#include "UI/Dock/RestingPointer.h"

namespace fendrel {

void RestingPointer::enter(QQuickItem* item) {
    m_entered = item;
    if (m_item) {
        set(item);
        return;
    }
    m_wait = m_clock.after(rest, [this] { set(m_entered); });
}

void RestingPointer::leave(QQuickItem* item) {
    if (m_entered != item)
        return; // it is on the next one already
    m_entered = nullptr;
    leaveSoon();
}

void RestingPointer::enterShown() {
    m_wait.reset();
}

void RestingPointer::leaveShown() {
    if (!m_entered)
        leaveSoon();
}

void RestingPointer::close() {
    set(nullptr);
}

void RestingPointer::leaveSoon() {
    m_wait.reset();
    if (m_item)
        m_wait = m_clock.after(patience, [this] { set(nullptr); });
}

void RestingPointer::set(QQuickItem* item) {
    m_wait.reset();
    if (m_item == item)
        return;
    if (m_item)
        disconnect(m_item, nullptr, this, nullptr);
    m_item = item;
    if (item)
        connect(item, &QObject::destroyed, this, &RestingPointer::changed);
    Q_EMIT changed();
}

} // namespace fendrel
