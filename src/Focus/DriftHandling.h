#pragma once

#include "Focus/DriftDecision.h"
#include "Focus/Gate.h"
#include "Focus/Judgement.h"
#include "Focus/SiteDrift.h"
#include "Focus/WindowTitles.h"
#include "Ports/Applications.h"
#include "Ports/Clock.h"

#include <QSet>

#include <functional>
#include <optional>

namespace fendrel {

class BrowserBridge;
class Classifier;
class FocusSession;
class ModeEngine;
class Workspace;

/// From a new thing in front to letting it be or stopping it. Compares the classifier's verdict with the current mode,
/// and while a focus session is on covers what certainly belongs elsewhere with the gate. Main thread.
class DriftHandling {
public:
    DriftHandling(ModeEngine& engine, Classifier& classifier, const FocusSession& focus, Gate& gate,
                  BrowserBridge& bridge, Workspace& workspace, Applications& applications, Clock& clock);

    std::function<bool()> isOnboardingDone = [] { return true; };

    // What is in front
    void classify(const Subject& subject, const std::optional<BrowserTab>& tab = {});
    void judge(const BrowserTab& tab); ///< the active tab of a browser, whenever it changes
    void act(const Verdict& verdict, const Subject& subject, const std::optional<BrowserTab>& tab = {});
    drift::Decision decide(const Verdict& verdict, const Subject& subject) const;
    /// Another application came to the front: the gate of a different one has nothing to cover any more.
    void frontChanged(const std::optional<RunningApp>& app);
    void runningChanged();                     ///< nor has the gate of an application that ended
    void windowsGone(const QString& bundleID); ///< nor of one that shows no window any more
    void modesChanged(); ///< another mode is the current one, or modes were edited: lets through what fits now
    void focusStopped(); ///< outside a session nothing is gated, and what was allowed once no longer is

    // The gate
    void present(const Gate::Blocked& blocked);
    void letThrough(const Gate::Blocked& blocked);
    bool fits(const QString& bundleID) const; ///< whether an application belongs to the current mode or to all
    bool fits(const Gate::Blocked& blocked) const;
    bool isAllowedOnce(const QString& bundleID) const { return m_allowedOnce.contains(bundleID); }

    // The answers to the gate; without an open gate they do nothing
    void stay();
    void switchToOwner();
    void allowOnce();
    void addToMode();

    /// The user's correction. Nothing: it belongs to no mode.
    void correct(const Subject& subject, const std::optional<QString>& modeID);
    void correctFront(const std::optional<QString>& modeID);

    SiteDrift& sites() { return m_sites; }

private:
    bool isGuarding() const;
    drift::Decision decideApp(const Verdict& verdict, const AppSubject& app) const;
    void actOnApp(const Verdict& verdict, const AppSubject& app);
    void allow(const Gate::Blocked& blocked);
    void stayFrom(const Gate::Blocked& blocked, const Gate::App& app);
    bool belongsHere(const AppSubject& app);
    void cancelSwitchTo(const std::optional<Mode>& owner);
    void goBackFrom(const Gate::App& blocked);
    void stayEnded();

    ModeEngine& m_engine;
    Classifier& m_classifier;
    const FocusSession& m_focus;
    Gate& m_gate;
    Workspace& m_workspace;
    Applications& m_applications;
    Clock& m_clock;
    SiteDrift m_sites;

    QSet<QString> m_allowedOnce;
    std::optional<RunningApp> m_lastAllowedApp; ///< where "stay" goes back to
    std::optional<Subject> m_lastSubject;
    Handle m_judgement;
    /// The application that a stay action is leaving. A window manager may hand it the keyboard once more on the way,
    /// which is not the user coming back to it.
    std::optional<QString> m_leaving;
    Handle m_stayEnd;
    std::optional<Handle> m_delayedOpen; ///< of the file manager
};

} // namespace fendrel
