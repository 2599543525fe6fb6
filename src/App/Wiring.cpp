// How the services meet: every hook is set here and nowhere else.

#include "App/AppController.h"
#include "Modes/EntryDelay.h"

#include <QCoreApplication>

namespace fendrel {

void AppController::wire() {
    Applications& applications = *m_platform.applications;
    applications.onInstalledChanged = [this] { m_workspace.refreshInstalled(); };
    applications.onRunningChanged = [this] {
        const auto before = m_workspace.running();
        m_workspace.refreshRunning();
        m_bridge.runningChanged();
        m_drift.runningChanged();
        if (!before.contains(m_workspace.running()))
            installHostManifests(); // a browser that is started for the first time has its folder from now on
    };
    applications.onActivated = [this](const std::optional<RunningApp>& app) {
        m_workspace.refreshRunning();
        if (app && app->isRegular && app->pid != QCoreApplication::applicationPid() && isOnboardingDone())
            m_seen.cameToFront(app->bundleID);
        m_router.appDidActivate(app);
        updateActiveDisplay();
    };
    m_titles.onChange = [this](const std::optional<WindowTitles::Front>& front) {
        m_router.windowDidChange(front);
        updateActiveDisplay();
    };

    m_messages.current = [this] { return std::optional(m_engine.current()); };
    m_messages.modes = [this] { return m_engine.modes(); };
    m_messages.isQuiet = [this] { return m_engine.startedWithoutModes() && !isOnboardingDone(); };
    m_messages.entryDelay = [this](const Mode& mode) { return m_engine.entryDelay(mode); };
    m_messages.onSwitch = [this](const Mode& mode) { m_engine.requestSwitch(mode); };
    m_messages.onOpen = [this](const QString& bundleID) { m_workspace.open(bundleID); };
    m_messages.breakThrough = [this] { return m_preferences.breakThroughWords(); };
    m_messages.onShow = [this] { play(Sound::messageLetThrough); };
    m_messages.passCritical = [this] { return m_preferences.passCritical(); };
    connect(&m_messages, &HeldMessages::changed, this, &AppController::updateBanners);
    connect(&m_engine, &ModeEngine::changed, this, [this] {
        const auto& pending = m_engine.pending();
        m_messages.headingFor(pending ? pending->target.id : m_engine.current().id);
    });

    m_bridge.onTab = [this](const BrowserTab& tab) { m_router.tabDidChange(tab); };
    m_bridge.onAsk = [this](BrowserID browser, TabID tab) { m_router.pageAskedFor({.browser = browser, .tab = tab}); };
    m_bridge.onClosed = [this](BrowserID browser, TabID tab) {
        m_drift.sites().tabClosed({.browser = browser, .tab = tab});
    };
    m_bridge.onGone = [this](BrowserID browser) { m_drift.sites().browserGone(browser); };

    m_platform.systemDock->onRunningChanged = [this] { m_replacement.settle(); };
    m_platform.systemDock->onEdgesChanged = [this] { m_replacement.edgeGuard().updateEdges(); };
    m_platform.accessibility->onWindowsChanged = [this] {
        m_minimized.refresh();
        Q_EMIT windowsChanged();
    };
    m_platform.accessibility->onFocusedWindowMoved = [this] { updateActiveDisplay(); };
    m_platform.badges->onChanged = [this](const QString&) { Q_EMIT badgesChanged(); };
    m_platform.displays->onChanged = [this] {
        m_replacement.edgeGuard().updateEdges();
        layoutDocks();
    };
    m_platform.displays->onSpaceChanged = [this] { updateAutoHide(); };
    connect(&m_preferences, &Preferences::changed, this, &AppController::layoutDocks);
    connect(&m_preferences, &Preferences::changed, this, &AppController::updateBanners);
    connect(&m_preferences, &Preferences::changed, this, &AppController::chooseModel);
    connect(&m_preferences, &Preferences::changed, this, &AppController::registerHotKeys);
    connect(&m_engine, &ModeEngine::changed, this, &AppController::registerHotKeys);
    m_hotKeys.onPressed = [this](const HotKeyAction& action) { hotKeyPressed(action); };
    connect(this, &AppController::onboardingChanged, this, &AppController::updateBanners);
    chooseModel();

    m_engine.entryDelay = [this](const Mode& target) {
        return entryDelay(target, m_budget.isUsedUp(target), m_focus.isOn(), m_preferences.strictness());
    };
    m_engine.onCommit = [this](const Mode& mode) { modeDidChange(mode); };
    m_engine.onEdit = [this] {
        m_widgets.sync(m_engine.current());
        m_messages.modesEdited();
        m_classifier.checkModel(); // the model is told of the modes
        m_drift.modesChanged();
        m_router.judgeFrontAgain();
    };
    m_classifier.onForgotten = [this] {
        m_drift.modesChanged();
        m_router.judgeFrontAgain();
    };
    m_backup.onSettingsChanged = [this] {
        m_widgetSizes.reload();
        m_widgets.reload();
    };
    m_suggestions.readCalendar = [this] { m_widgets.calendar().refresh(false); };
    m_suggestions.calls = [this] {
        QList<ModeSuggestions::Call> calls;
        for (const auto& event : m_widgets.calendar().upcoming())
            if (event.joinURL && !event.isAllDay)
                calls.append({.title = event.title, .start = event.start, .host = event.joinURL->host().toLower()});
        return calls;
    };
    m_suggestions.hasCalendar = [this] {
        const auto access = m_widgets.calendar().access();
        return access != CalendarStore::Access::missing && access != CalendarStore::Access::denied;
    };
    m_suggestions.isAllowed = [this](const QString& bundleID) { return m_drift.isAllowedOnce(bundleID); };
    m_suggestions.mayPropose = [this] { return isOnboardingDone() && !m_gate.blocked(); };
    connect(&m_engine, &ModeEngine::changed, &m_suggestions, &ModeSuggestions::update);
    connect(&m_gate, &Gate::changed, &m_suggestions, &ModeSuggestions::update);
    connect(&m_widgets.calendar(), &WidgetFeed::changed, &m_suggestions, &ModeSuggestions::update);
    connect(this, &AppController::onboardingChanged, &m_suggestions, &ModeSuggestions::update);
    m_suggestions.displayName = [this](const QString& bundleID) { return m_workspace.displayName(bundleID); };
    connect(&m_engine, &ModeEngine::changed, &m_context, &ModeContext::modesEdited);
    m_context.openPages = [this](const QStringList& urls) { return m_bridge.open(urls); };
    m_context.openAddress = [this](const QUrl& address) { m_platform.shell->openAddress(address); };
    m_context.frontPage = [this] { return m_router.frontPage(); };
    m_focus.onChange = [this](bool isOn) { focusDidChange(isOn); };
    m_budget.current = [this] { return std::optional(m_engine.current()); };
    m_budget.spending = [this] { return spendingMode(); };
    m_router.isOnboardingDone = [this] { return isOnboardingDone(); };
    m_drift.isOnboardingDone = [this] { return isOnboardingDone(); };
    m_feedback.showAlert = [this](const Alert& alert) { onAlert(alert); };
}

AppController::~AppController() {
    // The ports outlive the services: nothing may reach a service through them from now on.
    m_platform.applications->onInstalledChanged = [] {};
    m_platform.applications->onRunningChanged = [] {};
    m_platform.applications->onActivated = [](const auto&) {};
    m_platform.systemDock->onRunningChanged = [] {};
    m_platform.systemDock->onEdgesChanged = [] {};
    m_platform.accessibility->onWindowsChanged = [] {};
    m_platform.accessibility->onFocusedWindowMoved = [] {};
    m_platform.badges->onChanged = [](const QString&) {};
    m_platform.displays->onChanged = [] {};
    m_platform.displays->onSpaceChanged = [] {};
    m_platform.accessibility->onTrustChanged = [] {};
    m_platform.languageModel->onAvailabilityChanged = [] {};
}

/// While messages are held, so that what is held makes no noise either.
void AppController::updateBanners() {
    const bool isHolding = m_messages.canRead() && !m_messages.isQuiet();
    m_platform.notificationBanners->setQuiet(isHolding && m_preferences.quietBanners());
}

void AppController::play(Sound sound) {
    if (m_preferences.sounds())
        m_platform.sounds->play(sound);
}

void AppController::chooseModel() {
    m_platform.languageModel->choose({.server = m_preferences.modelServer(), .model = m_preferences.modelName()});
}

/// After every committed switch.
void AppController::modeDidChange(const Mode& mode) {
    m_widgets.sync(mode);
    play(Sound::modeSwitch);
    m_suggestions.dismiss();
    const auto destination = m_messages.modeChanged(mode);
    if (m_preferences.tidyOnSwitch())
        m_tidyUp.tidy(mode);
    m_context.modeChanged(mode);
    m_drift.modesChanged();
    if (destination)
        m_workspace.open(*destination);
    // What was opened comes to the front and is judged then. A gate over what is still there would stand in its way.
    const auto& front = m_titles.front();
    const bool isComing = destination && m_workspace.url(*destination) && (!front || front->bundleID != *destination);
    if (!isComing)
        m_router.judgeFrontAgain();
}

void AppController::focusDidChange(bool isOn) {
    play(isOn ? Sound::focusStart : Sound::focusStop);
    if (isOn)
        m_router.judgeFrontAgain();
    else
        m_drift.focusStopped();
    m_suggestions.update(); // what was allowed for the session no longer is
}

/// The mode whose allowance is being spent now: the current one, while something that is certainly another mode's is in
/// front.
std::optional<Mode> AppController::spendingMode() const {
    const Mode& current = m_engine.current();
    const auto& front = m_classifier.front();
    if (current.dailyBudget <= Seconds{} || !front || !front->verdict)
        return {};
    const Verdict& verdict = *front->verdict;
    const bool isElsewhere = verdict.certainty == Certainty::certain && verdict.modeID &&
                             *verdict.modeID != current.id && m_engine.mode(*verdict.modeID);
    return isElsewhere ? std::optional(current) : std::nullopt;
}

} // namespace fendrel
