#include "Focus/DriftHandling.h"

#include "App/Workspace.h"
#include "Base/Overloaded.h"
#include "Focus/Classifier.h"
#include "Focus/FocusSession.h"
#include "Modes/ModeEngine.h"

#include <algorithm>

namespace fendrel {

using namespace std::chrono_literals;

DriftHandling::DriftHandling(ModeEngine& engine, Classifier& classifier, const FocusSession& focus, Gate& gate,
                             BrowserBridge& bridge, Workspace& workspace, Applications& applications, Clock& clock)
    : m_engine(engine),
      m_classifier(classifier),
      m_focus(focus),
      m_gate(gate),
      m_workspace(workspace),
      m_applications(applications),
      m_clock(clock),
      m_sites(engine, classifier, focus, gate, bridge, applications, clock) {
    // Who left by himself does not want the switch any more that he asked for to get in.
    m_gate.onWithdrawn = [this](const Gate::Blocked& blocked) { cancelSwitchTo(blocked.owner); };
    m_sites.classify = [this](const Subject& subject, const BrowserTab& tab) { classify(subject, tab); };
}

/// Before the first run is over there are no modes of the user's own, and nothing to guard.
bool DriftHandling::isGuarding() const {
    return !m_engine.modes().isEmpty() || isOnboardingDone();
}

void DriftHandling::classify(const Subject& subject, const std::optional<BrowserTab>& tab) {
    m_lastSubject = subject;
    m_judgement = m_classifier.judge(subject, [this, subject, tab](const std::optional<Verdict>& verdict) {
        const auto& front = m_classifier.front();
        if (verdict && front && front->subject == subject)
            act(*verdict, subject, tab);
    });
}

void DriftHandling::judge(const BrowserTab& tab) {
    m_sites.remember(tab);
    if (isGuarding())
        m_sites.judge(tab);
}

drift::Decision DriftHandling::decide(const Verdict& verdict, const Subject& subject) const {
    return std::visit(Overloaded{[&](const AppSubject& app) { return decideApp(verdict, app); },
                                 [&](const SiteSubject& site) { return m_sites.decide(verdict, site.host); }},
                      subject);
}

drift::Decision DriftHandling::decideApp(const Verdict& verdict, const AppSubject& app) const {
    const auto frontmost = m_applications.frontmost();
    return drift::decide({.modeExists = verdict.modeID && m_engine.mode(*verdict.modeID),
                          .isCurrentMode = verdict.modeID == m_engine.current().id,
                          .certainty = verdict.certainty,
                          .isAllowedOnce = m_allowedOnce.contains(app.bundleID),
                          .isInFront = frontmost && frontmost->bundleID == app.bundleID,
                          .isFocusOn = m_focus.isOn()});
}

void DriftHandling::act(const Verdict& verdict, const Subject& subject, const std::optional<BrowserTab>& tab) {
    if (!isGuarding())
        return;
    if (const auto* app = std::get_if<AppSubject>(&subject))
        actOnApp(verdict, *app);
    else if (tab)
        m_sites.act(verdict, std::get<SiteSubject>(subject), *tab);
}

void DriftHandling::actOnApp(const Verdict& verdict, const AppSubject& app) {
    const auto frontmost = m_applications.frontmost();
    if (!frontmost || frontmost->bundleID != app.bundleID)
        return;
    const drift::Decision decision = decideApp(verdict, app);
    if (decision == drift::Decision::currentMode)
        m_lastAllowedApp = frontmost;
    if (decision != drift::Decision::gate || m_leaving == app.bundleID)
        return;
    present({.subject = Gate::App{.pid = frontmost->pid, .bundleID = app.bundleID},
             .name = frontmost->name.isEmpty() ? m_workspace.displayName(app.bundleID) : frontmost->name,
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
    if (const Gate::App* blocked = m_gate.blockedApp(); blocked && blocked->bundleID != app->bundleID)
        m_gate.withdraw();
    m_sites.frontChanged(*app);
}

void DriftHandling::runningChanged() {
    if (const Gate::App* blocked = m_gate.blockedApp(); blocked && !m_workspace.running().contains(blocked->bundleID))
        m_gate.withdraw();
}

void DriftHandling::windowsGone(const QString& bundleID) {
    if (m_workspace.hasVisibleWindow(bundleID))
        return;
    if (const Gate::App* blocked = m_gate.blockedApp(); blocked && blocked->bundleID == bundleID)
        m_gate.withdraw();
    m_sites.windowsGone(bundleID);
}

void DriftHandling::modesChanged() {
    if (const auto blocked = m_gate.blocked()) {
        const bool isOwned =
            blocked->owner && blocked->owner->id != m_engine.current().id && m_engine.mode(blocked->owner->id);
        const Gate::Site* site = blocked->site();
        if (!isOwned || fits(*blocked) || (site && !m_sites.isStopped(site->host)))
            letThrough(*blocked);
    }
    m_sites.review();
}

void DriftHandling::focusStopped() {
    m_judgement.reset();
    m_delayedOpen.reset();
    m_allowedOnce.clear();
    m_engine.cancelPending();
    if (const auto blocked = m_gate.blocked())
        letThrough(*blocked);
    m_sites.focusStopped();
}

void DriftHandling::present(const Gate::Blocked& blocked) {
    m_gate.open(blocked);
}

void DriftHandling::letThrough(const Gate::Blocked& blocked) {
    cancelSwitchTo(blocked.owner);
    if (const Gate::Site* site = blocked.site()) {
        m_sites.letThrough(*site);
    } else {
        const Gate::App& stopped = *blocked.app();
        const auto instances = m_workspace.instances(stopped.bundleID);
        const auto app = std::ranges::find(instances, stopped.pid, &RunningApp::pid);
        if (app != instances.end())
            m_lastAllowedApp = *app;
        // Brought forward before the panel goes, so that the keyboard does not pass to a third window in between.
        m_applications.activate(stopped.pid);
    }
    m_gate.close();
}

void DriftHandling::cancelSwitchTo(const std::optional<Mode>& owner) {
    if (m_engine.pending() && owner && m_engine.pending()->target.id == owner->id)
        m_engine.cancelPending();
}

bool DriftHandling::fits(const QString& bundleID) const {
    return m_engine.catalog().sharedApps.contains(bundleID) || m_engine.current().apps.contains(bundleID);
}

bool DriftHandling::fits(const Gate::Blocked& blocked) const {
    const Gate::Site* site = blocked.site();
    return site ? Mode::site(site->host, m_engine.current().sites) : fits(blocked.app()->bundleID);
}

void DriftHandling::stay() {
    const auto blocked = m_gate.blocked();
    if (!blocked)
        return;
    cancelSwitchTo(blocked->owner);
    if (const Gate::Site* site = blocked->site()) {
        m_sites.stay(*site);
    } else {
        m_leaving = blocked->app()->bundleID;
        m_stayEnd = m_clock.after(2s, [this] { stayEnded(); });
        goBackFrom(*blocked->app());
    }
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
    const auto verdict = m_classifier.known(app);
    return verdict && verdict->modeID == m_engine.current().id;
}

void DriftHandling::goBackFrom(const Gate::App& blocked) {
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
    allow(*blocked);
    letThrough(*blocked);
}

void DriftHandling::allow(const Gate::Blocked& blocked) {
    if (const Gate::Site* site = blocked.site())
        m_sites.allowOnce(site->host);
    else
        m_allowedOnce.insert(blocked.app()->bundleID);
}

void DriftHandling::addToMode() {
    const auto blocked = m_gate.blocked();
    if (!blocked)
        return;
    if (const Gate::Site* site = blocked->site())
        m_engine.addSite(site->host, m_engine.current().id);
    else
        m_engine.addApp(blocked->app()->bundleID, m_engine.current().id);
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
    const auto* site = std::get_if<SiteSubject>(&subject);
    auto blocked = m_gate.blocked();
    if (blocked && (site ? !blocked->site() || blocked->site()->host != site->host
                         : !blocked->app() || blocked->app()->bundleID != key(subject)))
        blocked.reset();

    // A list goes before the user's word. What it names for yet another mode stays that list's; what is let be is
    // allowed for this session, or it would be stopped again the moment it has the keyboard.
    const Mode* listing = site ? m_engine.listingSite(site->host) : m_engine.listing(key(subject));
    const bool isOverruled = listing && listing->id != modeID;
    const Mode* owner = modeID ? m_engine.mode(*modeID) : nullptr;
    if (owner && owner->id != m_engine.current().id) {
        if (site)
            m_sites.review();
        if (blocked && !isOverruled) {
            cancelSwitchTo(blocked->owner);
            blocked->owner = *owner;
            m_gate.open(*blocked);
        }
        return;
    }
    if (site && isOverruled && m_focus.isOn())
        m_sites.allowOnce(site->host);
    else if (blocked && isOverruled)
        allow(*blocked);
    if (blocked)
        letThrough(*blocked);
    if (site)
        m_sites.review();
}

} // namespace fendrel
