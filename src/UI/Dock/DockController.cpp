#include "UI/Dock/DockController.h"

#include "App/AppController.h"
#include "UI/Countdown.h"
#include "UI/Messages/MessagesController.h"

namespace fendrel {

using namespace Qt::StringLiterals;

DockController::DockController(AppController& controller, AppIcons& icons, MessagesController& messages)
    : m_controller(controller),
      m_messages(messages),
      m_modes(controller),
      m_apps(controller, icons),
      m_actions(controller),
      m_minimized(controller, icons),
      m_trash(controller),
      m_notices(controller, icons),
      m_previews(*controller.platform().previews),
      m_restingPointer(*controller.platform().clock),
      m_windows(controller),
      m_widgets(controller),
      m_widgetActions(controller, m_widgets) {
    connect(&controller.engine(), &ModeEngine::changed, this, &DockController::modeChanged);
    connect(&controller.preferences(), &Preferences::changed, this, &DockController::lookChanged);
    connect(&controller.replacement(), &DockReplacement::changed, this, &DockController::replacementChanged);
    connect(&m_restingPointer, &RestingPointer::changed, this, [this] {
        const QQuickItem* item = m_restingPointer.item();
        m_windows.setBundleID(item ? item->property("bundleID").toString() : QString());
    });
    connect(&controller.gate(), &Gate::changed, this, &DockController::gateChanged);
    connect(&controller.hotKeys(), &HotKeyRegistry::changed, this, &DockController::hotKeysChanged);
    const auto count = [this] { m_controller.dockAppsChanged(m_apps.rowCount()); };
    connect(&m_apps, &QAbstractItemModel::rowsInserted, this, count);
    connect(&m_apps, &QAbstractItemModel::rowsRemoved, this, count);
    count();
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

QStringList DockController::appHotKeys() const {
    QStringList labels;
    for (int index = 0; const auto label = m_controller.preferences().appShortcut(index); ++index)
        labels.append(m_controller.hotKeys().works({HotKeyAction::Kind::openApp, index}) ? *label : QString());
    return labels;
}

void DockController::openApp(int index) {
    if (const QString bundleID = m_apps.bundleID(index); !bundleID.isEmpty())
        m_actions.click(bundleID);
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

QString DockController::budgetUsed(const QString& modeID) const {
    const Mode* mode = m_controller.engine().mode(modeID);
    if (!mode || mode->dailyBudget <= Seconds{})
        return {};
    const DriftBudget& budget = m_controller.budget();
    const Seconds used = std::min(budget.used(modeID), mode->dailyBudget);
    return tr("%1 of %2 used today").arg(remainingText(used), remainingText(mode->dailyBudget));
}

Preferences* DockController::preferences() {
    return &m_controller.preferences();
}

QString DockController::systemDock() const {
    return m_controller.replacement().dockName();
}

bool DockController::replacesDock() const {
    return m_controller.replacement().isOn();
}

void DockController::replaceDock(bool on) {
    m_controller.askToReplaceDock(on);
}

void DockController::openSettings(const QString& pane) {
    m_controller.showSettings(pane);
}

void DockController::editMode(const QString& modeID) {
    m_controller.showModes(modeID);
}

void DockController::quit() {
    m_controller.quit();
}

} // namespace fendrel
