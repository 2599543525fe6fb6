#include "UI/Settings/SettingsController.h"

#include "App/AppController.h"
#include "UI/Settings/SettingsCatalog.h"

#include <QCoreApplication>
#include <QPointer>

namespace fendrel {

using namespace Qt::StringLiterals;

SettingsController::SettingsController(AppController& controller, AppIcons& icons, Capabilities& capabilities)
    : m_controller(controller),
      m_icons(icons),
      m_capabilities(capabilities),
      m_files(*controller.platform().fileChooser) {
    connect(&controller.preferences(), &Preferences::changed, this, &SettingsController::looksChanged);
    connect(&controller.classifier(), &Classifier::changed, this, &SettingsController::stateChanged);
    connect(&controller.messages(), &HeldMessages::changed, this, &SettingsController::stateChanged);
    connect(&controller.replacement(), &DockReplacement::changed, this, &SettingsController::dockChanged);
}

SettingsController::~SettingsController() = default;

Preferences* SettingsController::preferences() {
    return &m_controller.preferences();
}

void SettingsController::setPane(const QString& pane) {
    if (pane == m_pane)
        return;
    m_pane = pane;
    Q_EMIT paneChanged();
}

ModesController* SettingsController::modes() {
    if (!m_modes)
        m_modes = std::make_unique<ModesController>(m_controller, m_icons);
    return m_modes.get();
}

KeyboardController* SettingsController::keyboard() {
    if (!m_keyboard)
        m_keyboard = std::make_unique<KeyboardController>(m_controller);
    return m_keyboard.get();
}

LookEditor* SettingsController::lookEditor() {
    if (!m_lookEditor)
        m_lookEditor = std::make_unique<LookEditor>(m_controller);
    return m_lookEditor.get();
}

PermissionsModel* SettingsController::permissions() {
    if (!m_permissions)
        m_permissions =
            std::make_unique<PermissionsModel>(m_controller, m_icons, m_capabilities, PermissionsModel::Shows::all);
    return m_permissions.get();
}

AboutController* SettingsController::about() {
    if (!m_about)
        m_about = std::make_unique<AboutController>(m_controller, m_capabilities, m_files);
    return m_about.get();
}

AnswersController* SettingsController::answers() {
    if (!m_answers)
        m_answers = std::make_unique<AnswersController>(m_controller, m_icons);
    return m_answers.get();
}

DataController* SettingsController::backup() {
    if (!m_backup)
        m_backup = std::make_unique<DataController>(m_controller, m_files);
    return m_backup.get();
}

AccountsController* SettingsController::accounts() {
    if (!m_accounts)
        m_accounts = std::make_unique<AccountsController>(m_controller);
    return m_accounts.get();
}

ContextsController* SettingsController::contexts() {
    if (!m_contexts)
        m_contexts = std::make_unique<ContextsController>(m_controller);
    return m_contexts.get();
}

WidgetsController* SettingsController::widgets() {
    if (!m_widgets)
        m_widgets = std::make_unique<WidgetsController>(m_controller, m_files);
    return m_widgets.get();
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

bool SettingsController::startsAtLogin() const {
    return m_controller.platform().loginItem->isOn();
}

void SettingsController::setStartsAtLogin(bool on) {
    m_controller.platform().loginItem->set(on);
    Q_EMIT stateChanged(); // a switch that could not be turned goes back
}

bool SettingsController::replacesDock() const {
    return m_controller.replacement().isOn();
}

QString SettingsController::dockHelp() const {
    return settingsCatalog::dockHelp(m_controller.replacement().dockName(), replacesDock());
}

void SettingsController::showFirstRun() {
    m_controller.showOnboarding();
}

void SettingsController::replaceDock(bool on) {
    m_controller.askToReplaceDock(on);
}

QString SettingsController::labelOf(const QString& setting) const {
    return settingsCatalog::entry(setting).label;
}

QString SettingsController::helpOf(const QString& setting) const {
    return settingsCatalog::entry(setting).help;
}

void SettingsController::askToReset(const QString& pane) {
    m_controller.onAlert(
        {.message = tr("Reset the settings of “%1”?").arg(labelOf(pane)),
         .informativeText = tr("They go back to how they were when Fendrel was new. Starting at log-in, "
                               "replacing the system dock, your modes and what Fendrel has learned "
                               "stay as they are."),
         .buttons = {tr("Reset"), tr("Cancel")},
         .isGrave = true,
         .answered = [self = QPointer(this), pane](int button) {
             if (!self || button != 0)
                 return;
             const QStringList settings = settingsCatalog::settingsOf(pane);
             self->m_controller.preferences().reset(settings);
             self->m_controller.widgets().reset(settings);
         }});
}

QString SettingsController::version() const {
    return QStringLiteral(FENDREL_VERSION);
}

} // namespace fendrel
