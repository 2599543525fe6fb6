#include "App/EventRouter.h"

#include "Focus/Classifier.h"
#include "Focus/DriftHandling.h"

#include <QCoreApplication>

namespace fendrel {

EventRouter::EventRouter(WindowTitles& titles, Classifier& classifier, DriftHandling& drift)
    : m_titles(titles), m_classifier(classifier), m_drift(drift) {}

void EventRouter::appDidActivate(const std::optional<RunningApp>& app) {
    if (!isOnboardingDone() || (app && app->pid == QCoreApplication::applicationPid()))
        return;
    m_drift.frontChanged(app);
    // A change of the front is judged once, by what follows it. Coming back to the same window changes nothing there,
    // yet it is a new attempt to use what may be gated.
    const auto before = m_titles.front();
    m_titles.track(app);
    if (m_titles.front() == before)
        windowDidChange(before);
}

void EventRouter::windowDidChange(const std::optional<WindowTitles::Front>& front) {
    if (!isOnboardingDone())
        return;
    if (front && !front->title && m_titles.isTrusted())
        m_drift.windowsGone(front->bundleID);
    // Of a browser the page is judged. One that has not told of any yet is judged as the application that it is.
    const auto tab = front ? m_drift.sites().activeTab(front->pid) : std::nullopt;
    if (tab)
        m_drift.judge(*tab);
    else if (front)
        m_drift.classify(AppSubject{.bundleID = front->bundleID, .name = front->appName, .title = front->title});
    else
        m_classifier.clearFront();
}

void EventRouter::tabDidChange(const BrowserTab& tab) {
    if (isOnboardingDone())
        m_drift.judge(tab);
    else
        m_drift.sites().remember(tab);
}

void EventRouter::judgeFrontAgain() {
    windowDidChange(m_titles.front());
}

} // namespace fendrel
