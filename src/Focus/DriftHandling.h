#pragma once

#include "Focus/DriftDecision.h"
#include "Focus/Gate.h"
#include "Focus/Judgement.h"
#include "Focus/WindowTitles.h"
#include "Ports/Applications.h"
#include "Ports/Clock.h"

#include <QSet>

#include <functional>
#include <optional>

namespace fendrel {

class Classifier;
class FocusSession;
class ModeEngine;
class Workspace;

/// From a new thing in front to letting it be or stopping it. Compares the classifier's verdict with the current mode,
/// and while a focus session is on covers what certainly belongs elsewhere with the gate. Main thread.
class DriftHandling {
public:
    DriftHandling(ModeEngine& engine, Classifier& classifier, const FocusSession& focus, Gate& gate,
                  Workspace& workspace, Applications& applications, Clock& clock);

    std::function<bool()> isOnboardingDone = [] { return true; };

    // What is in front
    void classify(const Subject& subject);
    void act(const Verdict& verdict, const Subject& subject);
    drift::Decision decide(const Verdict& verdict, const AppSubject& app) const;
    /// Another application came to the front: the gate of a different one has nothing to cover any more.
    void frontChanged(const std::optional<RunningApp>& app);
    void runningChanged(); ///< the gate of an application that ended has nothing to cover either
    void modeChanged();    ///< lets through what belongs to the new mode
    void focusStopped();   ///< outside a session nothing is gated, and what was allowed once no longer is

    // The gate
    void present(const Gate::Blocked& blocked);
    void letThrough(const Gate::Blocked& blocked);
    bool fits(const QString& bundleID) const; ///< whether an application belongs to the current mode or to all

    // The answers to the gate; without an open gate they do nothing
    void stay();
    void switchToOwner();
    void allowOnce();
    void addToMode();

    /// The user's correction of what is in front. Nothing: it belongs to no mode.
    void correctFront(const std::optional<QString>& modeID);

private:
    void cancelSwitchTo(const std::optional<Mode>& owner);
    void goBackFrom(const Gate::Blocked& blocked);
    void stayEnded();

    ModeEngine& m_engine;
    Classifier& m_classifier;
    const FocusSession& m_focus;
    Gate& m_gate;
    Workspace& m_workspace;
    Applications& m_applications;
    Clock& m_clock;

    QSet<QString> m_allowedOnce;
    std::optional<RunningApp> m_lastAllowedApp; ///< where "stay" goes back to
    std::optional<Subject> m_lastSubject;
    Handle m_judgement;
    /// The application that a stay action is leaving. A window manager may hand it the keyboard once more on the way,
    /// which is not the user coming back to it.
    std::optional<QString> m_leaving;
    Handle m_stayEnd;
    Handle m_delayedOpen;
};

} // namespace fendrel
