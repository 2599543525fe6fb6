#pragma once

#include "App/Alert.h"
#include "App/Backup.h"
#include "App/EventRouter.h"
#include "App/Feedback.h"
#include "App/HotKeyRegistry.h"
#include "App/Preferences.h"
#include "App/TidyUp.h"
#include "App/Workspace.h"
#include "Dock/AutoHide.h"
#include "Dock/DockEdits.h"
#include "Dock/DockPlacement.h"
#include "Dock/DockReplacement.h"
#include "Dock/DockUndo.h"
#include "Dock/MinimizedWindows.h"
#include "Focus/BrowserBridge.h"
#include "Focus/BrowserStates.h"
#include "Focus/Classifier.h"
#include "Focus/DriftBudget.h"
#include "Focus/DriftHandling.h"
#include "Focus/FocusSession.h"
#include "Focus/Gate.h"
#include "Focus/SeenApps.h"
#include "Focus/WindowTitles.h"
#include "Messages/HeldMessages.h"
#include "Modes/ModeContext.h"
#include "Modes/ModeEngine.h"
#include "Modes/ModeStore.h"
#include "Modes/ModeSuggestions.h"
#include "Ports/Platform.h"
#include "Widgets/WidgetSizes.h"
#include "Widgets/Widgets.h"

#include <QObject>

#include <map>
#include <memory>

namespace fendrel {

/// Owns every service, in the order of their creation, and starts and stops them. Main thread.
class AppController : public QObject {
    Q_OBJECT
public:
    /// The platform has to outlive the controller.
    explicit AppController(Platform& platform);
    ~AppController() override;

    // What the interface does for the controller
    std::function<void()> onShowOnboarding = [] {};
    /// A pane, or a setting on one.
    std::function<void(const QString& name)> onShowSettings = [](const QString&) {};
    std::function<void(const QString& modeID)> onShowModes = [](const QString&) {};
    std::function<void(const Alert&)> onAlert = [](const Alert&) {};
    std::function<void()> onLayoutDocks = [] {}; ///< make the panels match `dockScreens`
    std::function<void()> onAttention = [] {};   ///< the user started the program once more
    std::function<void()> onFocusDock = [] {};   ///< lead the keyboard to the dock
    std::function<void(int index)> onOpenDockApp = [](int) {};
    std::function<void()> onQuit = [] {};

    /// Everything that happens once, after the hooks are set. A known pane opens the settings there.
    void launch(const QString& settingsPane = {});
    void quit(); ///< gives the system's dock back first

    static const QStringList& settingsPanes();
    void showSettings(const QString& pane); ///< an unknown pane opens nothing
    /// Opens the window of the modes at one of them; an unknown one leaves it where it is.
    void showModes(const QString& modeID = {}) { onShowModes(modeID); }
    /// The program was started a second time, perhaps for a settings pane.
    void startedAgain(const QString& settingsPane);

    bool isOnboardingDone() const;
    void showOnboarding() { onShowOnboarding(); }
    /// Starts the user off with these templates, in the catalogue's order; none of them known: with the starters.
    void finishOnboarding(const QStringList& templateIDs);

    // The docks
    QList<Display> dockScreens() const;
    bool isDockShown(const QString& displayID) const;
    void dockPointerChanged(const QString& displayID, bool isInside);
    void dockHoldChanged(const QString& displayID, bool isHeld); ///< a menu of the dock opened or closed
    void updateAutoHide();
    void focusDock() { onFocusDock(); }
    void dockAppsChanged(int count); ///< as many applications stand in the dock now
    /// Replaces the system's dock, after the user agreed to it, or gives it back at once.
    void askToReplaceDock(bool on);
    void setReplacesDock(bool on);

    Platform& platform() { return m_platform; }
    DockReplacement& replacement() { return m_replacement; }
    const DockReplacement& replacement() const { return m_replacement; }
    ModeEngine& engine() { return m_engine; }
    const ModeEngine& engine() const { return m_engine; }
    DriftBudget& budget() { return m_budget; }
    Preferences& preferences() { return m_preferences; }
    FocusSession& focus() { return m_focus; }
    HeldMessages& messages() { return m_messages; }
    WidgetAccounts& accounts() { return m_accounts; }
    Widgets& widgets() { return m_widgets; }
    WidgetSizes& widgetSizes() { return m_widgetSizes; }
    WindowTitles& titles() { return m_titles; }
    BrowserBridge& bridge() { return m_bridge; }
    Workspace& workspace() { return m_workspace; }
    Classifier& classifier() { return m_classifier; }
    Gate& gate() { return m_gate; }
    DriftHandling& drift() { return m_drift; }
    ModeSuggestions& suggestions() { return m_suggestions; }
    ModeContext& context() { return m_context; }
    MinimizedWindows& minimized() { return m_minimized; }
    DockUndo& undo() { return m_undo; }
    DockEdits& edits() { return m_edits; }
    Backup& backup() { return m_backup; }
    const SeenApps& seen() const { return m_seen; }
    HotKeyRegistry& hotKeys() { return m_hotKeys; }

Q_SIGNALS:
    void dockVisibilityChanged();
    void windowsChanged(); ///< some window of another application came, went or changed its state
    void badgesChanged();
    void onboardingChanged();
    void surroundingsChanged(); ///< the desktop's status area or compositor came or went

private:
    void wire();
    void start();
    void registerHotKeys();
    void hotKeyPressed(const HotKeyAction& action);
    void installHostManifests();
    void layoutDocks();
    void scheduleDockTimer();
    void changeAutoHide(const QString& displayID, const std::function<void(AutoHide&, ContinuousTime)>& change);
    void updateActiveDisplay();
    void updateBanners();
    void chooseModel();
    void play(Sound sound); ///< if the user wants sounds
    void modeDidChange(const Mode& mode);
    void focusDidChange(bool isOn);
    std::optional<Mode> spendingMode() const;

    Platform& m_platform;
    DockReplacement m_replacement;
    ModeStore m_store;
    ModeEngine m_engine;
    DriftBudget m_budget;
    Preferences m_preferences;
    FocusSession m_focus;
    HeldMessages m_messages;
    WidgetAccounts m_accounts;
    Widgets m_widgets;
    WidgetSizes m_widgetSizes;
    WindowTitles m_titles;
    BrowserBridge m_bridge;
    Workspace m_workspace;
    MinimizedWindows m_minimized;
    DockUndo m_undo;
    DockEdits m_edits;
    Classifier m_classifier;
    Gate m_gate;
    DriftHandling m_drift;
    BrowserStates m_browserStates;
    ModeSuggestions m_suggestions;
    ModeContext m_context;
    EventRouter m_router;
    TidyUp m_tidyUp;
    SeenApps m_seen;
    HotKeyRegistry m_hotKeys;
    Feedback m_feedback;
    Backup m_backup;

    std::shared_ptr<QSet<QString>> m_failedManifests = std::make_shared<QSet<QString>>(); ///< the disk worker's
    std::map<QString, AutoHide> m_autoHide;                                               ///< by display
    std::optional<QString> m_activeDisplay;
    std::optional<Handle> m_dockTimer;
    int m_dockApps = 0;
    bool m_isQuitting = false;
};

} // namespace fendrel
