#include "UI/Setup/FirstRunController.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/Settings/SettingsCatalog.h"

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {
const QString pageKey = u"onboardingPage"_s;
const QString chosenKey = u"onboardingModes"_s;
} // namespace

FirstRunController::FirstRunController(AppController& controller, AppIcons& icons, Capabilities& capabilities)
    : m_controller(controller), m_icons(icons), m_capabilities(capabilities) {
    connect(&controller.workspace(), &Workspace::installedChanged, this, &FirstRunController::templatesChanged);
    connect(&controller.engine(), &ModeEngine::changed, this, &FirstRunController::templatesChanged);
    connect(&controller.preferences(), &Preferences::changed, this, &FirstRunController::changed);
    connect(&controller.replacement(), &DockReplacement::changed, this, &FirstRunController::changed);
    connect(&controller, &AppController::onboardingChanged, this, [this] {
        if (!isRepeat())
            return;
        SettingsStore& settings = *m_controller.platform().settings;
        settings.remove(pageKey);
        settings.remove(chosenKey);
        Q_EMIT closed();
    });
}

void FirstRunController::begin() {
    m_capabilities.refresh();
    const SettingsStore& settings = *m_controller.platform().settings;
    m_page = 0;
    m_chosen.clear();
    if (isRepeat()) {
        for (const Mode& mode : m_controller.engine().modes())
            m_chosen.append(mode.id);
    } else {
        for (const Mode& mode : m_controller.engine().catalog().starterTemplates())
            m_chosen.append(mode.id);
        m_chosen = settings.read<QStringList>(chosenKey).value_or(m_chosen);
        setPage(static_cast<int>(settings.read<qint64>(pageKey).value_or(0)));
    }
    Q_EMIT templatesChanged();
    Q_EMIT changed();
}

void FirstRunController::setPage(int page) {
    if (page < 0 || page >= pageCount() || page == m_page)
        return;
    m_page = page;
    if (!isRepeat())
        m_controller.platform().settings->set(pageKey, qint64{page});
    Q_EMIT changed();
}

bool FirstRunController::isRepeat() const {
    return m_controller.isOnboardingDone();
}

bool FirstRunController::exists(const QString& modeID) const {
    return isRepeat() && m_controller.engine().mode(modeID) != nullptr;
}

QVariantList FirstRunController::templates() const {
    const ModeEngine& engine = m_controller.engine();
    QVariantList list;
    for (const Mode& modeTemplate : engine.catalog().templates) {
        const bool isThere = exists(modeTemplate.id);
        const Mode mode = isThere ? *engine.mode(modeTemplate.id) : engine.seeded(modeTemplate);
        QStringList names;
        QStringList icons;
        for (const QString& bundleID : mode.apps) {
            names.append(m_controller.workspace().displayName(bundleID));
            icons.append(m_icons.source(bundleID));
        }
        list.append(QVariantMap{{u"modeID"_s, mode.id},
                                {u"name"_s, mode.name},
                                {u"symbol"_s, mode.symbol},
                                {u"tint"_s, color(mode.tint)},
                                {u"apps"_s, names},
                                {u"icons"_s, icons},
                                {u"exists"_s, isThere}});
    }
    return list;
}

PermissionsModel* FirstRunController::browsers() {
    if (!m_browsers)
        m_browsers = std::make_unique<PermissionsModel>(m_controller, m_icons, m_capabilities,
                                                        PermissionsModel::Shows::browsers);
    return m_browsers.get();
}

PermissionsModel* FirstRunController::problems() {
    if (!m_problems)
        m_problems = std::make_unique<PermissionsModel>(m_controller, m_icons, m_capabilities,
                                                        PermissionsModel::Shows::problems);
    return m_problems.get();
}

QString FirstRunController::systemDock() const {
    return m_controller.replacement().dockName();
}

QString FirstRunController::dockHelp() const {
    return settingsCatalog::dockHelp(systemDock(), replacesDock());
}

bool FirstRunController::replacesDock() const {
    return m_controller.replacement().isOn();
}

bool FirstRunController::startsAtLogin() const {
    return m_controller.platform().loginItem->isOn();
}

void FirstRunController::setStartsAtLogin(bool on) {
    m_controller.platform().loginItem->set(on);
    Q_EMIT changed();
}

bool FirstRunController::isDark() const {
    return m_controller.preferences().systemIsDark();
}

void FirstRunController::toggle(const QString& modeID) {
    if (exists(modeID))
        return;
    if (!m_chosen.removeOne(modeID))
        m_chosen.append(modeID);
    if (!isRepeat())
        m_controller.platform().settings->set(chosenKey, m_chosen);
    Q_EMIT changed();
}

void FirstRunController::replaceDock(bool on) {
    m_controller.askToReplaceDock(on);
}

void FirstRunController::finish() {
    if (!isRepeat()) {
        m_controller.finishOnboarding(m_chosen);
        return;
    }
    ModeEngine& engine = m_controller.engine();
    for (const Mode& modeTemplate : engine.catalog().templates) {
        if (m_chosen.contains(modeTemplate.id) && !exists(modeTemplate.id))
            engine.addMode(engine.seeded(modeTemplate));
    }
    Q_EMIT closed();
}

void FirstRunController::leave() {
    Q_EMIT closed();
}

} // namespace fendrel
