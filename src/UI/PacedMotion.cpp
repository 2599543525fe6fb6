#include "UI/PacedMotion.h"

#include <QMouseEvent>

#include <utility>

namespace fendrel {

namespace {

constexpr auto frame = std::chrono::nanoseconds(std::chrono::seconds(1)) / 60;

}

bool PacedMotion::takes(const QEvent& event) {
    const bool isPointer = event.isPointerEvent() || event.type() == QEvent::Leave || event.type() == QEvent::DragEnter;
    const bool isMotion =
        event.type() == QEvent::MouseMove && static_cast<const QMouseEvent&>(event).buttons() == Qt::NoButton;
    if (isMotion) {
        const auto& motion = static_cast<const QMouseEvent&>(event);
        // As mouse event it would be offered once more to every handler that waits for a button.
        m_newest = std::make_unique<QHoverEvent>(QEvent::HoverMove, motion.scenePosition(), motion.globalPosition(),
                                                 motion.scenePosition(), motion.modifiers(), motion.pointingDevice());
        if (!m_wait)
            deliver();
    } else if (isPointer) {
        m_newest.reset(); // it says itself where the pointer is, or that it is gone
    } else if (event.type() == QEvent::UpdateRequest && m_clock.continuousNow() - m_delivered > frame / 2) {
        deliver(); // else it would ask for a frame of its own, between this and the next
    }
    return isMotion;
}

void PacedMotion::deliver() {
    const auto newest = std::exchange(m_newest, nullptr);
    if (!newest)
        return;
    m_delivered = m_clock.continuousNow();
    m_wait = m_clock.after(frame, [this] {
        m_wait.reset();
        deliver();
    });
    m_deliver(*newest);
}

} // namespace fendrel
