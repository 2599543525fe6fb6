#include "UI/Settings/SettingsController.h"

#include "App/AppController.h"

#include <QCoreApplication>

namespace fendrel {

using namespace Qt::StringLiterals;

SettingsController::SettingsController(AppController& controller, AppIcons& icons)
    : m_controller(controller), m_icons(icons) {
    connect(&controller.preferences(), &Preferences::changed, this, &SettingsController::looksChanged);
    connect(&controller.classifier(), &Classifier::changed, this, &SettingsController::stateChanged);
    connect(&controller.messages(), &HeldMessages::changed, this, &SettingsController::stateChanged);
    connect(&controller.replacement(), &DockReplacement::changed, this, &SettingsController::dockChanged);
}

Preferences* SettingsController::preferences() {
    return &m_controller.preferences();
}

void SettingsController::setPane(const QString& pane) {
    if (pane == m_pane)
        return;
    m_pane = pane;
    Q_EMIT paneChanged();
}

ModeEditor* SettingsController::modeEditor() {
    if (!m_modeEditor)
        m_modeEditor = std::make_unique<ModeEditor>(m_controller, m_icons);
    return m_modeEditor.get();
}

bool SettingsController::isDark() const {
    return m_controller.preferences().systemIsDark();
}

QString SettingsController::modelProblem() const {
    return m_controller.platform().languageModel->unavailableReason();
}

QString SettingsController::messagesProblem() const {
    return m_controller.messages().unavailableReason();
}

bool SettingsController::replacesDock() const {
    return m_controller.replacement().isOn();
}

QString SettingsController::systemDock() const {
    return m_controller.replacement().dockName();
}

void SettingsController::replaceDock(bool on) {
    m_controller.askToReplaceDock(on);
}

QString SettingsController::version() const {
    return QStringLiteral(FENDREL_VERSION);
}

QVariantList SettingsController::presets() const {
    QVariantList list;
    for (const auto& [name, look] : DockAppearance::presets()) {
        list.append(QVariantMap{{u"name"_s, name},
                                {u"label"_s, QCoreApplication::translate("DockAppearance", name.toUtf8())},
                                {u"background"_s, look.background},
                                {u"opacity"_s, look.opacity},
                                {u"isDark"_s, look.isDark},
                                {u"isChosen"_s, look == m_controller.preferences().appearance()}});
    }
    return list;
}

void SettingsController::choosePreset(const QString& name) {
    if (const auto look = DockAppearance::preset(name))
        m_controller.preferences().setAppearance(*look);
}

} // namespace fendrel
