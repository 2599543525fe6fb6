#include "Focus/SiteDrift.h"

#include "Focus/BrowserBridge.h"
#include "Focus/Classifier.h"
#include "Focus/FocusSession.h"
#include "Modes/ModeEngine.h"

#include <algorithm>

namespace fendrel {

using namespace std::chrono_literals;

namespace {

constexpr auto askDelay = 1500ms; // a page that is left within it is not worth a question
constexpr auto stayPatience = 2s; // what a browser may take to leave a page

} // namespace

SiteDrift::SiteDrift(ModeEngine& engine, Classifier& classifier, const FocusSession& focus, Gate& gate,
                     BrowserBridge& bridge, Applications& applications, Clock& clock)
    : m_engine(engine),
      m_classifier(classifier),
      m_focus(focus),
      m_gate(gate),
      m_bridge(bridge),
      m_applications(applications),
      m_clock(clock) {}

void SiteDrift::remember(const BrowserTab& tab) {
    Active& active = m_activeTabs[tab.browser];
    active.tab = tab;
    if (tab.isFocused)
        active.order = ++m_reports;
    Q_EMIT changed();
}

std::optional<BrowserTab> SiteDrift::activeTab(BrowserID browser) const {
    const auto found = m_activeTabs.find(browser);
    return found == m_activeTabs.end() ? std::nullopt : std::optional(found->second.tab);
}

std::optional<BrowserTab> SiteDrift::activeTab(qint64 pid) const {
    const Active* last = nullptr;
    for (const auto& [id, active] : m_activeTabs) {
        const auto* browser = m_bridge.browser(id);
        if (browser && browser->app && browser->app->pid == pid && (!last || active.order > last->order))
            last = &active;
    }
    return last ? std::optional(last->tab) : std::nullopt;
}

bool SiteDrift::shows(TabKey tab, const QString& site) const {
    const auto active = activeTab(tab.browser);
    return active && active->key() == tab && active->site() == site;
}

/// A browser whose application nobody knows may be the one in front.
bool SiteDrift::mayBeInFront(BrowserID id) const {
    const auto* browser = m_bridge.browser(id);
    if (!browser || !browser->app)
        return true;
    const auto frontmost = m_applications.frontmost();
    if (!frontmost || frontmost->pid != browser->app->pid)
        return false;
    const auto tab = activeTab(frontmost->pid);
    return !tab || tab->browser == id;
}

SiteDrift::Veiled* SiteDrift::veiled(TabKey tab) {
    const auto found = std::ranges::find(m_veiled, tab, [](const Veiled& veiled) { return veiled.tab.key(); });
    return found == m_veiled.end() ? nullptr : &*found;
}

/// The other mode that a site certainly belongs to.
const Mode* SiteDrift::owner(const QString& site) const {
    const auto verdict = m_classifier.known(SiteSubject{.host = site});
    const bool isElsewhere = verdict && verdict->certainty == Certainty::certain && verdict->modeID &&
                             *verdict->modeID != m_engine.current().id;
    return isElsewhere ? m_engine.mode(*verdict->modeID) : nullptr;
}

void SiteDrift::judge(const BrowserTab& tab) {
    const TabKey key = tab.key();
    const auto site = tab.site();
    const auto isStillAbout = [&](TabKey other, const QString& host) { return other == key && site == host; };
    // A page that keeps renaming itself does not put the question off.
    if (m_pendingAsk && m_pendingAsk->tab.browser == tab.browser &&
        !isStillAbout(m_pendingAsk->tab, m_pendingAsk->site))
        m_pendingAsk.reset();
    if (const Gate::Site* shown = m_gate.blockedSite(); shown && shown->tab.browser == tab.browser) {
        if (shown->tab != key)
            putOff();
        else if (shown->host != site)
            m_gate.withdraw();
    }
    if (m_leaving && m_leaving->tab.browser == tab.browser) {
        if (isStillAbout(m_leaving->tab, m_leaving->host))
            return;
        m_leaving.reset();
        m_stayEnd.reset();
    }

    if (!site) {
        forget(key);
        if (mayBeInFront(tab.browser))
            m_classifier.clearFront();
        return;
    }
    const SiteSubject subject{.host = *site, .title = tab.title};
    if (m_focus.isOn() && !m_allowedOnce.contains(*site)) {
        const Mode* listing = m_engine.listingSite(*site);
        if (listing && listing->id != m_engine.current().id) {
            // A list needs no question; what it says is shown all the same.
            if (mayBeInFront(tab.browser))
                m_classifier.showRule(subject);
            showGate(*site, tab, Mode(*listing), {});
            return;
        }
    }
    if (const Veiled* entry = veiled(key); entry && entry->site != *site)
        unveil(key);
    // What is judged is what the user looks at.
    if (mayBeInFront(tab.browser))
        classify(subject, tab);
}

drift::Decision SiteDrift::decide(const Verdict& verdict, const QString& site) const {
    return drift::decide({.modeExists = verdict.modeID && m_engine.mode(*verdict.modeID),
                          .isCurrentMode = verdict.modeID == m_engine.current().id,
                          .certainty = verdict.certainty,
                          .isAllowedOnce = m_allowedOnce.contains(site),
                          .isInFront = true,
                          .isFocusOn = m_focus.isOn()});
}

void SiteDrift::act(const Verdict& verdict, const SiteSubject& site, const BrowserTab& tab) {
    if (decide(verdict, site.host) != drift::Decision::gate || !shows(tab.key(), site.host) ||
        !mayBeInFront(tab.browser))
        return;
    showGate(site.host, tab, Mode(*m_engine.mode(*verdict.modeID)), verdict.what);
}

void SiteDrift::showGate(const QString& site, const BrowserTab& tab, const Mode& owner,
                         const std::optional<QString>& note) {
    if (!m_focus.isOn())
        return;
    veil(tab, site, owner, note);
    const TabKey key = tab.key();
    const Gate::Site* shown = m_gate.blockedSite();
    if (shown && shown->tab == key && shown->host == site)
        return;
    const bool isPending = m_pendingAsk && m_pendingAsk->tab == key && m_pendingAsk->site == site;
    // A browser in the background is asked about when it comes to the front, and takes no other's turn until then.
    if (veiled(key)->asked || isPending || !mayBeInFront(tab.browser))
        return;
    m_pendingAsk = Pending{.tab = key, .site = site, .timer = m_clock.after(askDelay, [this, key] { ask(key); })};
}

void SiteDrift::veil(const BrowserTab& tab, const QString& site, const Mode& owner,
                     const std::optional<QString>& note) {
    const Veiled* before = veiled(tab.key());
    const bool asked = before && before->site == site && before->asked;
    const Veiled entry{.tab = tab, .site = site, .owner = owner, .note = note, .asked = asked};
    if (Veiled* present = veiled(tab.key()))
        *present = entry;
    else
        m_veiled.append(entry);
    m_bridge.veil(tab, site, owner);
    Q_EMIT changed();
}

void SiteDrift::unveil(TabKey tab) {
    m_bridge.unveil(tab);
    forget(tab);
}

void SiteDrift::forget(TabKey tab) {
    if (m_veiled.removeIf([tab](const Veiled& veiled) { return veiled.tab.key() == tab; }) > 0)
        Q_EMIT changed();
}

void SiteDrift::ask(TabKey tab) {
    m_pendingAsk.reset();
    Veiled* entry = veiled(tab);
    if (!entry || !shows(tab, entry->site) || !mayBeInFront(tab.browser))
        return;
    entry->asked = true;
    const Gate::Blocked blocked{.subject = Gate::Site{.host = entry->site, .tab = tab},
                                .name = entry->site,
                                .owner = entry->owner,
                                .note = entry->note};
    Q_EMIT changed();
    m_gate.open(blocked);
}

void SiteDrift::askedFor(TabKey tab) {
    if (veiled(tab)) {
        ask(tab);
        return;
    }
    const auto active = activeTab(tab.browser);
    if (active && active->key() == tab && active->site())
        judge(*active);
}

/// The gate closes without an answer, and asks again when the user comes back.
void SiteDrift::putOff() {
    const Gate::Site* shown = m_gate.blockedSite();
    if (!shown)
        return;
    if (Veiled* entry = veiled(shown->tab))
        entry->asked = false;
    m_gate.withdraw();
    Q_EMIT changed();
}

void SiteDrift::tabClosed(TabKey tab) {
    if (m_pendingAsk && m_pendingAsk->tab == tab)
        m_pendingAsk.reset();
    if (const auto active = activeTab(tab.browser); active && active->key() == tab)
        m_activeTabs.erase(tab.browser);
    if (const Gate::Site* shown = m_gate.blockedSite(); shown && shown->tab == tab)
        m_gate.withdraw();
    forget(tab);
}

void SiteDrift::browserGone(BrowserID browser) {
    if (m_pendingAsk && m_pendingAsk->tab.browser == browser)
        m_pendingAsk.reset();
    m_activeTabs.erase(browser);
    m_veiled.removeIf([browser](const Veiled& veiled) { return veiled.tab.browser == browser; });
    if (const Gate::Site* shown = m_gate.blockedSite(); shown && shown->tab.browser == browser)
        m_gate.withdraw();
    Q_EMIT changed();
}

void SiteDrift::stay(const Gate::Site& site) {
    m_leaving = site;
    m_stayEnd = m_clock.after(stayPatience, [this] { stayEnded(); });
    m_bridge.back(site.tab);
    forget(site.tab);
    comeForward(site.tab.browser);
}

void SiteDrift::stayEnded() {
    const auto left = m_leaving;
    m_leaving.reset();
    // The page would not go: it is judged as if it came anew.
    if (left && shows(left->tab, left->host))
        judge(*activeTab(left->tab.browser));
}

void SiteDrift::letThrough(const Gate::Site& site) {
    unveil(site.tab);
    review(); // other tabs may show the same site
    comeForward(site.tab.browser);
}

/// Before the gate's panel goes, so that the keyboard does not pass to a third window in between.
void SiteDrift::comeForward(BrowserID id) {
    const auto* browser = m_bridge.browser(id);
    if (browser && browser->app)
        m_applications.activate(browser->app->pid);
}

/// The application of the browser whose page the gate asks about, if it does and the system knows it.
const RunningApp* SiteDrift::askedBrowser() const {
    const Gate::Site* shown = m_gate.blockedSite();
    const auto* browser = shown ? m_bridge.browser(shown->tab.browser) : nullptr;
    return browser && browser->app ? &*browser->app : nullptr;
}

void SiteDrift::frontChanged(const RunningApp& app) {
    if (const RunningApp* asked = askedBrowser(); asked && asked->pid != app.pid)
        putOff();
}

void SiteDrift::windowsGone(const QString& bundleID) {
    if (const RunningApp* asked = askedBrowser(); asked && asked->bundleID == bundleID)
        putOff();
}

bool SiteDrift::isStopped(const QString& site) const {
    return m_focus.isOn() && !m_allowedOnce.contains(site) && owner(site);
}

void SiteDrift::review() {
    for (const Veiled& entry : QList(m_veiled)) {
        if (!isStopped(entry.site))
            unveil(entry.tab.key());
        else if (const Mode* now = owner(entry.site); *now != entry.owner)
            veil(entry.tab, entry.site, Mode(*now), entry.note);
    }
}

void SiteDrift::focusStopped() {
    m_pendingAsk.reset();
    m_allowedOnce.clear();
    review();
}

} // namespace fendrel
