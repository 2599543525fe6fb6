#include "UI/Dock/UndoController.h"

#include "App/AppController.h"

namespace fendrel {

UndoController::UndoController(AppController& controller) : m_controller(controller) {
    connect(&controller.undo(), &DockUndo::changed, this, &UndoController::update);
}

bool UndoController::isOffered() const {
    return m_controller.undo().offer().has_value();
}

void UndoController::undo() {
    m_controller.undo().runUndo();
}

void UndoController::dismiss() {
    m_controller.undo().dismiss();
}

void UndoController::setHovered(bool isHovered) {
    m_controller.undo().setHovered(isHovered);
}

void UndoController::update() {
    if (const auto& offer = m_controller.undo().offer()) {
        m_text = offer->text;
        m_tint = color(offer->color);
    }
    Q_EMIT changed();
}

} // namespace fendrel
