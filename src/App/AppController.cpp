#include "App/AppController.h"

#include "Base/Log.h"
#include "Focus/HostManifests.h"
#include "Widgets/DockWidget.h"
#include "Widgets/Usage/UsageRoots.h"

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString onboardingDoneKey = u"onboardingDone"_s;

/// Runs `done` when no key is on its way to the keyring any more, or after a while: it may wait for its user.
void whenSaved(WidgetAccounts& accounts, Clock& clock, std::function<void()> done) {
    const auto isBusy = [&accounts] {
        return std::ranges::any_of(WidgetAccounts::all(),
                                   [&](const auto& each) { return accounts.isBusy(each.service); });
    };
    if (!isBusy()) {
        done();
        return;
    }
    const auto once = std::make_shared<std::function<void()>>(std::move(done));
    const auto finish = [once] {
        if (const auto run = std::exchange(*once, {}))
            run();
    };
    const auto patience = std::make_shared<Handle>(clock.after(2s, finish));
    QObject::connect(&accounts, &WidgetAccounts::changed, &accounts, [isBusy, finish, patience] {
        if (!isBusy())
            finish();
    });
}

} // namespace

AppController::AppController(Platform& platform)
    : m_platform(platform),
      m_replacement(*platform.systemDock, *platform.pointerGuard, *platform.displays, *platform.settings,
                    *platform.clock),
      m_store(platform.folders.data, *platform.disk,
              [](const QString& widget) { return enumValue<DockWidget>(widget).has_value(); }),
      m_engine(m_store, *platform.settings, *platform.clock, ModeCatalog::with(platform.applications->nativeApps()),
               [&platform](const QString& bundleID) { return platform.applications->location(bundleID).has_value(); }),
      m_budget(*platform.settings, *platform.clock, *platform.idleTime),
      m_preferences(*platform.settings, *platform.look),
      m_focus(*platform.settings, *platform.clock),
      m_messages(*platform.notificationLog, *platform.languageModel, *platform.clock, m_engine.catalog().sharedApps),
      m_accounts(*platform.secrets),
      m_widgets(*platform.clock, *platform.http, *platform.settings, *platform.calendar, m_accounts, usageRoots()),
      m_widgetSizes(*platform.settings),
      m_titles(*platform.accessibility),
      m_bridge(*platform.applications, platform.isPeerOwnUser),
      m_workspace(*platform.applications, *platform.accessibility, *platform.shell),
      m_minimized(m_workspace),
      m_undo(*platform.clock),
      m_edits(
          m_engine, m_undo, [this](const QString& bundleID) { return m_workspace.displayName(bundleID); },
          [](const QString& widgetID) {
              const auto widget = enumValue<DockWidget>(widgetID);
              return widget ? kind(*widget).title() : widgetID;
          }),
      m_classifier(m_engine, *platform.languageModel, *platform.clock,
                   VerdictCache(platform.folders.data, *platform.disk),
                   [this](const QString& bundleID) { return m_workspace.displayName(bundleID); }),
      m_gate(*platform.clock),
      m_drift(m_engine, m_classifier, m_focus, m_gate, m_bridge, m_workspace, *platform.applications, *platform.clock),
      m_browserStates(m_engine, m_classifier, m_focus, m_drift.sites(), m_bridge),
      m_suggestions(m_engine, *platform.idleTime, *platform.clock),
      m_context(m_engine, m_workspace, *platform.documents, *platform.languageModel, *platform.clock, *platform.disk,
                platform.folders.data),
      m_router(m_titles, m_classifier, m_drift, m_suggestions, m_context),
      m_tidyUp(m_workspace, m_engine.catalog()),
      m_seen(*platform.settings, *platform.clock),
      m_hotKeys(*platform.hotKeys),
      m_feedback(*platform.settings, *platform.shell, platform.folders.crashes),
      m_backup(m_engine, m_preferences, *platform.settings, m_classifier, *platform.clock, *platform.disk,
               platform.folders.data) {}

void AppController::launch(const QString& settingsPane) {
    wire();
    m_replacement.settle();
    if (m_store.problem()) {
        onAlert({.message = tr("Fendrel couldn't read your modes"),
                 .informativeText = *m_store.problem(),
                 .buttons = {tr("OK")}});
    }
    if (m_preferences.crashReports())
        m_feedback.offerCrashReport();
    start();
    showSettings(settingsPane);
}

/// Runs again when onboarding is finished.
void AppController::start() {
    if (!isOnboardingDone())
        onShowOnboarding();
    layoutDocks();
    m_minimized.setOn(m_replacement.isOn());
    installHostManifests();
    m_bridge.listen(m_platform.folders.data);
    registerHotKeys();
    m_widgets.sync(m_engine.current());
    m_router.appDidActivate(m_platform.applications->frontmost());
}

void AppController::registerHotKeys() {
    m_hotKeys.apply(hotKeyPlan({.focus = m_preferences.focusShortcut(),
                                .dock = m_preferences.dockShortcut(),
                                .modeModifiers = m_preferences.modeModifiers(),
                                .appModifiers = m_preferences.appModifiers(),
                                .modes = static_cast<int>(m_engine.modes().size()),
                                .apps = m_dockApps}));
}

void AppController::hotKeyPressed(const HotKeyAction& action) {
    switch (action.kind) {
    case HotKeyAction::Kind::switchMode:
        if (action.index < m_engine.modes().size())
            m_engine.requestSwitch(Mode(m_engine.modes()[action.index]));
        break;
    case HotKeyAction::Kind::toggleFocus:
        if (m_focus.isOn())
            m_focus.stop();
        else
            m_focus.start();
        break;
    case HotKeyAction::Kind::focusDock:
        m_platform.hotKeys->yieldKeyboard();
        focusDock();
        break;
    case HotKeyAction::Kind::openApp:
        onOpenDockApp(action.index);
        break;
    }
}

void AppController::dockAppsChanged(int count) {
    m_dockApps = count;
    registerHotKeys();
}

void AppController::installHostManifests() {
    m_platform.disk->post(u"host manifests"_s,
                          [browsers = m_platform.browsers, relay = m_platform.relay, failed = m_failedManifests] {
                              hostManifests::install(browsers, relay, *failed);
                          });
}

void AppController::quit() {
    if (std::exchange(m_isQuitting, true))
        return;
    m_replacement.stop([this] { whenSaved(m_accounts, *m_platform.clock, [this] { onQuit(); }); });
}

void AppController::askToReplaceDock(bool on) {
    const QString name = m_replacement.dockName();
    if (!on || name.isEmpty() || on == m_replacement.isOn()) {
        setReplacesDock(on);
        return;
    }
    const QString first = name.left(1).toUpper() + name.mid(1);
    onAlert({.message = tr("Replace %1?").arg(name),
             .informativeText = tr("Fendrel hides %1 and takes its place at the bottom of the screen.\n\nYour Dock "
                                   "settings are saved. %2 comes back when you turn this off or quit Fendrel.")
                                    .arg(name, first),
             .buttons = {tr("Replace Dock"), tr("Cancel")},
             .answered = [this](int button) {
                 if (button == 0)
                     setReplacesDock(true);
             }});
}

void AppController::setReplacesDock(bool on) {
    m_replacement.set(on);
    if (on && !m_platform.accessibility->isTrusted())
        m_platform.accessibility->requestPermission();
    m_minimized.setOn(on);
    layoutDocks(); // they lie at the edge of the screen itself, or beside the system's own
}

const QStringList& AppController::settingsPanes() {
    static const QStringList panes{u"general"_s, u"dock"_s,     u"appearance"_s,  u"widgets"_s,
                                   u"modes"_s,   u"accounts"_s, u"permissions"_s, u"about"_s};
    return panes;
}

void AppController::showSettings(const QString& pane) {
    if (settingsPanes().contains(pane))
        onShowSettings(pane);
}

void AppController::startedAgain(const QString& settingsPane) {
    if (settingsPanes().contains(settingsPane))
        onShowSettings(settingsPane);
    else if (!isOnboardingDone())
        onShowOnboarding();
    else
        onAttention();
}

bool AppController::isOnboardingDone() const {
    return m_platform.settings->flag(onboardingDoneKey);
}

void AppController::finishOnboarding(const QStringList& templateIDs) {
    if (isOnboardingDone())
        return;
    QList<Mode> chosen;
    const auto choose = [&](const Mode& modeTemplate) {
        // The starters are there already, and the user may have edited them.
        const Mode* existing = m_engine.mode(modeTemplate.id);
        chosen.append(existing ? *existing : m_engine.seeded(modeTemplate));
    };
    for (const Mode& mode : m_engine.catalog().templates) {
        if (templateIDs.contains(mode.id))
            choose(mode);
    }
    if (chosen.isEmpty()) {
        for (const Mode& mode : m_engine.catalog().starterTemplates())
            choose(mode);
    }
    m_platform.settings->set(onboardingDoneKey, true);
    m_engine.replaceModes(chosen);
    m_engine.commit(chosen.first());
    Q_EMIT onboardingChanged();
    start();
}

QList<Display> AppController::dockScreens() const {
    return fendrel::dockScreens(m_platform.displays->all(), m_preferences.dockDisplay(), m_activeDisplay);
}

void AppController::layoutDocks() {
    const ContinuousTime now = m_platform.clock->continuousNow();
    const QList<Display> displays = dockScreens();
    moveToDisplays(m_autoHide, displays);
    for (const Display& display : displays) {
        AutoHide& dock = m_autoHide[display.id];
        dock.setEnabled(m_preferences.autoHide(), now);
        dock.setCovered(display.isFullScreen);
    }
    scheduleDockTimer();
    onLayoutDocks();
    Q_EMIT dockVisibilityChanged();
}

void AppController::updateActiveDisplay() {
    if (m_preferences.dockDisplay() != DockDisplay::active)
        return;
    const auto window = m_titles.window();
    const auto frame = window ? m_platform.accessibility->frame(*window) : std::nullopt;
    const auto display = frame ? displayAt(m_platform.displays->all(), frame->center()) : std::nullopt;
    if (!display || display->id == m_activeDisplay)
        return;
    m_activeDisplay = display->id;
    layoutDocks();
}

bool AppController::isDockShown(const QString& displayID) const {
    const auto found = m_autoHide.find(displayID);
    return found == m_autoHide.end() || found->second.isShown();
}

void AppController::dockPointerChanged(const QString& displayID, bool isInside) {
    changeAutoHide(displayID, [&](AutoHide& dock, ContinuousTime now) { dock.setPointerInside(isInside, now); });
}

void AppController::dockHoldChanged(const QString& displayID, bool isHeld) {
    changeAutoHide(displayID, [&](AutoHide& dock, ContinuousTime now) { dock.setHeld(isHeld, now); });
}

void AppController::changeAutoHide(const QString& displayID,
                                   const std::function<void(AutoHide&, ContinuousTime)>& change) {
    const auto found = m_autoHide.find(displayID);
    if (found == m_autoHide.end())
        return; // the display went a moment ago
    const bool wasShown = found->second.isShown();
    change(found->second, m_platform.clock->continuousNow());
    scheduleDockTimer();
    if (found->second.isShown() != wasShown)
        Q_EMIT dockVisibilityChanged();
}

/// The docks are looked after thirty times a second, but only while time alone can change one of them.
void AppController::scheduleDockTimer() {
    constexpr auto interval = Clock::Duration(1s) / 30;
    constexpr auto tolerance = Clock::Duration(1s) / 150;
    const bool isNeeded = std::ranges::any_of(m_autoHide, [](const auto& entry) { return entry.second.isWaiting(); });
    if (!isNeeded)
        m_dockTimer.reset();
    else if (!m_dockTimer)
        m_dockTimer = m_platform.clock->every(interval, tolerance, [this] { updateAutoHide(); });
}

void AppController::updateAutoHide() {
    const ContinuousTime now = m_platform.clock->continuousNow();
    bool hasChanged = false;
    for (auto& [display, autoHide] : m_autoHide) {
        const bool wasShown = autoHide.isShown();
        autoHide.tick(now);
        hasChanged |= autoHide.isShown() != wasShown;
    }
    if (!hasChanged)
        return;
    scheduleDockTimer();
    Q_EMIT dockVisibilityChanged();
}

} // namespace fendrel
