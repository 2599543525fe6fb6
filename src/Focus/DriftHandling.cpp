#include "Focus/DriftHandling.h"

#include "App/Workspace.h"
#include "Focus/Classifier.h"
#include "Focus/FocusSession.h"
#include "Modes/ModeEngine.h"

#include <algorithm>

namespace fendrel {

using namespace std::chrono_literals;

DriftHandling::DriftHandling(ModeEngine& engine, Classifier& classifier, const FocusSession& focus, Gate& gate,
                             Workspace& workspace, Applications& applications, Clock& clock)
    : m_engine(engine),
      m_classifier(classifier),
      m_focus(focus),
      m_gate(gate),
      m_workspace(workspace),
      m_applications(applications),
      m_clock(clock) {}

void DriftHandling::classify(const Subject& subject) {
    m_lastSubject = subject;
    m_judgement = m_classifier.judge(subject, [this, subject](const std::optional<Verdict>& verdict) {
        const auto& front = m_classifier.front();
        if (verdict && front && front->subject == subject)
            act(*verdict, subject);
    });
}

drift::Decision DriftHandling::decide(const Verdict& verdict, const AppSubject& app) const {
    const auto frontmost = m_applications.frontmost();
    return drift::decide({.modeExists = verdict.modeID && m_engine.mode(*verdict.modeID),
                          .isCurrentMode = verdict.modeID == m_engine.current().id,
                          .certainty = verdict.certainty,
                          .isAllowedOnce = m_allowedOnce.contains(app.bundleID),
                          .isInFront = frontmost && frontmost->bundleID == app.bundleID,
                          .isFocusOn = m_focus.isOn()});
}

void DriftHandling::act(const Verdict& verdict, const Subject& subject) {
    if (m_engine.modes().isEmpty() && !isOnboardingDone())
        return;
    const auto* app = std::get_if<AppSubject>(&subject);
    const auto frontmost = m_applications.frontmost();
    if (!app || !frontmost || frontmost->bundleID != app->bundleID)
        return;
    const drift::Decision decision = decide(verdict, *app);
    if (decision == drift::Decision::currentMode)
        m_lastAllowedApp = frontmost;
    if (decision != drift::Decision::gate || m_leaving == app->bundleID)
        return;
    present({.pid = frontmost->pid,
             .bundleID = app->bundleID,
             .name = frontmost->name.isEmpty() ? m_workspace.displayName(app->bundleID) : frontmost->name,
             .owner = *m_engine.mode(*verdict.modeID),
             .note = verdict.what});
}

void DriftHandling::frontChanged(const std::optional<RunningApp>& app) {
    if (!app)
        return;
    if (m_leaving && app->bundleID != *m_leaving) {
        m_leaving.reset();
        m_stayEnd.reset();
    }
    if (m_delayedOpen && fits(app->bundleID))
        m_delayedOpen.reset();
    if (m_gate.blocked() && m_gate.blocked()->bundleID != app->bundleID)
        m_gate.close();
}

void DriftHandling::runningChanged() {
    if (m_gate.blocked() && !m_workspace.running().contains(m_gate.blocked()->bundleID))
        m_gate.close();
}

void DriftHandling::windowsGone(const QString& bundleID) {
    if (m_gate.blocked() && m_gate.blocked()->bundleID == bundleID && !m_workspace.hasVisibleWindow(bundleID))
        m_gate.close();
}

void DriftHandling::modesChanged() {
    const auto blocked = m_gate.blocked();
    if (!blocked)
        return;
    const bool isStopped =
        blocked->owner && blocked->owner->id != m_engine.current().id && m_engine.mode(blocked->owner->id);
    if (!isStopped || fits(blocked->bundleID))
        letThrough(*blocked);
}

void DriftHandling::focusStopped() {
    m_judgement.reset();
    m_delayedOpen.reset();
    m_allowedOnce.clear();
    m_engine.cancelPending();
    if (const auto blocked = m_gate.blocked())
        letThrough(*blocked);
}

void DriftHandling::present(const Gate::Blocked& blocked) {
    m_gate.open(blocked);
}

void DriftHandling::letThrough(const Gate::Blocked& blocked) {
    cancelSwitchTo(blocked.owner);
    const auto instances = m_workspace.instances(blocked.bundleID);
    const auto app = std::ranges::find(instances, blocked.pid, &RunningApp::pid);
    if (app != instances.end())
        m_lastAllowedApp = *app;
    // Brought forward before the panel goes, so that the keyboard does not pass to a third window in between.
    m_applications.activate(blocked.pid);
    m_gate.close();
}

void DriftHandling::cancelSwitchTo(const std::optional<Mode>& owner) {
    if (m_engine.pending() && owner && m_engine.pending()->target.id == owner->id)
        m_engine.cancelPending();
}

bool DriftHandling::fits(const QString& bundleID) const {
    return m_engine.catalog().sharedApps.contains(bundleID) || m_engine.current().apps.contains(bundleID);
}

void DriftHandling::stay() {
    const auto blocked = m_gate.blocked();
    if (!blocked)
        return;
    m_leaving = blocked->bundleID;
    m_stayEnd = m_clock.after(2s, [this] { stayEnded(); });
    cancelSwitchTo(blocked->owner);
    goBackFrom(*blocked);
    m_gate.close();
}

void DriftHandling::stayEnded() {
    const QString leaving = m_leaving.value_or(QString());
    m_leaving.reset();
    const auto frontmost = m_applications.frontmost();
    // Nothing else came to the front: what was stopped is still there, and is judged as if it came anew.
    if (m_lastSubject && key(*m_lastSubject) == leaving && frontmost && frontmost->bundleID == leaving)
        classify(Subject(*m_lastSubject));
}

/// What was let through in another mode, or once in a session that is over, is no place to go back to.
bool DriftHandling::belongsHere(const AppSubject& app) {
    if (fits(app.bundleID) || m_allowedOnce.contains(app.bundleID))
        return true;
    auto verdict = m_classifier.ruleVerdict(app);
    if (!verdict)
        verdict = m_classifier.cachedVerdict(app);
    return verdict && verdict->modeID == m_engine.current().id;
}

void DriftHandling::goBackFrom(const Gate::Blocked& blocked) {
    const auto isRunning = [&](const RunningApp& app) {
        return m_workspace.instances(app.bundleID).contains(app) && app.bundleID != blocked.bundleID;
    };
    if (m_lastAllowedApp && isRunning(*m_lastAllowedApp) &&
        belongsHere({.bundleID = m_lastAllowedApp->bundleID, .name = m_lastAllowedApp->name})) {
        m_applications.activate(m_lastAllowedApp->pid);
        return;
    }
    const auto& running = m_workspace.runningApps();
    const auto fitting = std::ranges::find_if(
        running, [&](const QString& bundleID) { return bundleID != blocked.bundleID && fits(bundleID); });
    if (fitting != running.end()) {
        m_workspace.open(*fitting);
        return;
    }
    // Nothing of the mode runs. What was stopped must not be left in front while the file manager starts.
    m_applications.hide(blocked.pid);
    if (const QString fileManager = m_applications.fileManager(); !fileManager.isEmpty())
        m_delayedOpen = m_clock.after(1s, [this, fileManager] { m_workspace.open(fileManager); });
}

void DriftHandling::switchToOwner() {
    const auto blocked = m_gate.blocked();
    if (!blocked || !blocked->owner)
        return;
    // A mode that was deleted meanwhile cannot be entered, and what belonged to it belongs to none.
    if (const Mode* owner = m_engine.mode(blocked->owner->id))
        m_engine.requestSwitch(Mode(*owner));
    else
        letThrough(*blocked);
}

void DriftHandling::allowOnce() {
    const auto blocked = m_gate.blocked();
    if (!blocked)
        return;
    m_allowedOnce.insert(blocked->bundleID);
    letThrough(*blocked);
}

void DriftHandling::addToMode() {
    const auto blocked = m_gate.blocked();
    if (!blocked)
        return;
    m_engine.addApp(blocked->bundleID, m_engine.current().id);
    // The edit of the mode has let it through, unless the mode listed it already.
    if (m_gate.blocked())
        letThrough(*blocked);
}

void DriftHandling::correctFront(const std::optional<QString>& modeID) {
    if (const auto front = m_classifier.front())
        correct(front->subject, modeID);
}

void DriftHandling::correct(const Subject& subject, const std::optional<QString>& modeID) {
    m_classifier.correct(subject, modeID);
    const auto blocked = m_gate.blocked();
    if (!blocked || blocked->bundleID != key(subject))
        return;
    const Mode* owner = modeID ? m_engine.mode(*modeID) : nullptr;
    if (owner && owner->id != m_engine.current().id) {
        cancelSwitchTo(blocked->owner);
        Gate::Blocked corrected = *blocked;
        corrected.owner = *owner;
        m_gate.open(corrected);
        return;
    }
    // A list goes before the user's word, and would close the gate on it again the moment it has the keyboard.
    if (const Mode* listing = m_engine.listing(blocked->bundleID); listing && listing->id != modeID)
        m_allowedOnce.insert(blocked->bundleID);
    letThrough(*blocked);
}

} // namespace fendrel
