#include "App/EventRouter.h"

#include "Focus/Classifier.h"
#include "Focus/DriftHandling.h"
#include "Modes/ModeContext.h"
#include "Modes/ModeSuggestions.h"

#include <QCoreApplication>

#include <utility>

namespace fendrel {

namespace {

/// What a browser shows behind the window that its user looks at is not seen.
std::optional<ModeSnapshot::Page> seen(const BrowserTab& tab) {
    if (!tab.isFocused || tab.isPrivate)
        return {};
    return ModeSnapshot::Page{.url = tab.url.toString(QUrl::FullyEncoded), .title = tab.title};
}

} // namespace

EventRouter::EventRouter(WindowTitles& titles, Classifier& classifier, DriftHandling& drift,
                         ModeSuggestions& suggestions, ModeContext& context)
    : m_titles(titles), m_classifier(classifier), m_drift(drift), m_suggestions(suggestions), m_context(context) {}

void EventRouter::appDidActivate(const std::optional<RunningApp>& app) {
    if (!isOnboardingDone() || (app && app->pid == QCoreApplication::applicationPid()))
        return;
    m_drift.frontChanged(app);
    m_suggestions.frontChanged(app ? app->bundleID : QString());
    // A change of the front is judged once, by what follows it. Coming back to the same window changes nothing there,
    // yet it is a new attempt to use what may be gated.
    const auto before = m_titles.front();
    m_titles.track(app);
    if (m_titles.front() == before)
        judgeFrontAgain();
}

void EventRouter::windowDidChange(const std::optional<WindowTitles::Front>& front) {
    const qint64 before = std::exchange(m_frontPid, front ? front->pid : 0);
    // A browser's window is called what its page is, and of that the page itself tells.
    if (!front || front->pid != before || !m_drift.sites().activeTab(front->pid) || !front->title)
        judgeFrontAgain();
}

void EventRouter::judgeFrontAgain() {
    if (!isOnboardingDone())
        return;
    const auto& front = m_titles.front();
    if (!front) {
        m_classifier.clearFront();
        return;
    }
    if (!front->title && m_titles.isTrusted())
        m_drift.windowsGone(front->bundleID);
    // Of a browser the page is judged. One that has not told of any yet is judged as the application that it is.
    if (const auto tab = m_drift.sites().activeTab(front->pid))
        m_drift.judge(*tab);
    else
        m_drift.classify(AppSubject{.bundleID = front->bundleID, .name = front->appName, .title = front->title});
}

std::optional<ModeSnapshot::Page> EventRouter::frontPage() const {
    const auto& front = m_titles.front();
    const auto tab = front ? m_drift.sites().activeTab(front->pid) : std::nullopt;
    return tab ? seen(*tab) : std::nullopt;
}

void EventRouter::tabDidChange(const BrowserTab& tab) {
    if (isOnboardingDone()) {
        if (const auto page = seen(tab))
            m_context.saw(*page);
        m_drift.judge(tab);
    } else {
        m_drift.sites().remember(tab);
    }
}

void EventRouter::pageAskedFor(TabKey tab) {
    if (isOnboardingDone())
        m_drift.sites().askedFor(tab);
}

} // namespace fendrel
