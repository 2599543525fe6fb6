#include "UI/PacedMotion.h"

#include <QMouseEvent>

#include <utility>

namespace fendrel {

bool PacedMotion::holdsBack(const QEvent& event) {
    const bool isPointer = event.isPointerEvent() || event.type() == QEvent::Leave || event.type() == QEvent::DragEnter;
    const bool isMotion =
        event.type() == QEvent::MouseMove && static_cast<const QMouseEvent&>(event).buttons() == Qt::NoButton;
    if (!isMotion) {
        if (isPointer)
            m_newest.reset(); // it says itself where the pointer is, or that it is gone
        return false;
    }
    if (m_wait) {
        m_newest.reset(event.clone());
        return true;
    }
    wait();
    return false;
}

void PacedMotion::wait() {
    constexpr auto frame = std::chrono::milliseconds(16);
    m_wait = m_clock.after(frame, [this] {
        m_wait.reset();
        if (const auto newest = std::exchange(m_newest, nullptr)) {
            wait();
            m_deliver(*newest);
        }
    });
}

} // namespace fendrel
