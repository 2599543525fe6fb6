#include "Dock/DockUndo.h"

#include <utility>

namespace fendrel {

void DockUndo::show(const QString& text, Tint color, std::function<void()> undo) {
    m_offer = Offer{.id = QUuid::createUuid(), .text = text, .color = color};
    m_undo = std::move(undo);
    scheduleHide();
    Q_EMIT changed();
}

void DockUndo::runUndo() {
    if (!m_offer)
        return;
    const auto undo = std::exchange(m_undo, {});
    dismiss();
    undo();
}

void DockUndo::dismiss() {
    m_hideTask.reset();
    m_isHovered = false;
    m_undo = {};
    if (std::exchange(m_offer, {}))
        Q_EMIT changed();
}

void DockUndo::setHovered(bool isHovered) {
    if (std::exchange(m_isHovered, isHovered) == isHovered)
        return;
    if (isHovered)
        m_hideTask.reset();
    else
        scheduleHide();
}

void DockUndo::scheduleHide() {
    m_hideTask.reset();
    if (!m_offer)
        return;
    m_hideTask = m_clock.after(lifetime, [this] {
        if (!m_isHovered)
            dismiss();
    });
}

} // namespace fendrel
