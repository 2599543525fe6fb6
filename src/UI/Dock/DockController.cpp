#include "UI/Dock/DockController.h"

#include "App/AppController.h"
#include "UI/Messages/MessagesController.h"

namespace fendrel {

DockController::DockController(AppController& controller, AppIcons& icons, MessagesController& messages)
    : m_controller(controller), m_messages(messages), m_modes(controller), m_apps(controller, icons) {
    connect(&controller.engine(), &ModeEngine::changed, this, &DockController::modeChanged);
    connect(&controller.preferences(), &Preferences::changed, this, &DockController::lookChanged);
    connect(&controller.gate(), &Gate::changed, this, &DockController::gateChanged);
}

QString DockController::modeID() const {
    return m_controller.engine().current().id;
}

QString DockController::modeName() const {
    return m_controller.engine().current().name;
}

QColor DockController::tint() const {
    return color(m_controller.engine().current().tint);
}

Qt::Edge DockController::edge() const {
    switch (m_controller.preferences().dockPosition()) {
    case DockPosition::left:
        return Qt::LeftEdge;
    case DockPosition::right:
        return Qt::RightEdge;
    case DockPosition::bottom:
        break;
    }
    return Qt::BottomEdge;
}

int DockController::iconSize() const {
    const auto pixels = [this] {
        switch (m_controller.preferences().dockSize()) {
        case DockSize::small:
            return 36;
        case DockSize::large:
            return 60;
        case DockSize::medium:
            break;
        }
        return 46;
    };
    return qRound(pixels() * look().iconScale);
}

double DockController::magnification() const {
    return m_controller.preferences().magnify() ? look().magnification : 1;
}

const DockAppearance& DockController::look() const {
    return m_controller.preferences().appearance();
}

bool DockController::isGateOpen() const {
    return m_controller.gate().blocked().has_value();
}

void DockController::requestMode(const QString& modeID) {
    if (const Mode* mode = m_controller.engine().mode(modeID))
        m_controller.engine().requestSwitch(Mode(*mode));
}

void DockController::showHeld(const QString& modeID, bool isByKeyboard) {
    m_messages.showHeld(modeID, isByKeyboard);
}

void DockController::openApp(const QString& bundleID) {
    const auto& front = m_controller.titles().front();
    const bool isFront = front && front->bundleID == bundleID && !m_controller.gate().blocked();
    if (isFront && m_controller.preferences().clickToHide())
        m_controller.workspace().hide(bundleID);
    else
        m_controller.workspace().open(bundleID);
}

void DockController::hideApp(const QString& bundleID) {
    m_controller.workspace().hide(bundleID);
}

void DockController::showAllWindows(const QString& bundleID) {
    m_controller.workspace().showAllWindows(bundleID);
}

void DockController::quitApp(const QString& bundleID) {
    m_controller.workspace().quit(bundleID);
}

void DockController::revealApp(const QString& bundleID) {
    m_controller.workspace().revealInFinder(bundleID);
}

void DockController::setInMode(const QString& bundleID, bool isInMode) {
    if (isInMode)
        m_controller.engine().addApp(bundleID, modeID());
    else
        m_controller.engine().removeApp(bundleID, modeID());
}

void DockController::openSettings(const QString& pane) {
    m_controller.showSettings(pane);
}

void DockController::quit() {
    m_controller.quit();
}

} // namespace fendrel
