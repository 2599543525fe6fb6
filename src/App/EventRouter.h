#pragma once

#include "Focus/BrowserTab.h"
#include "Focus/WindowTitles.h"
#include "Modes/ModeSnapshot.h"

#include <functional>
#include <optional>

namespace fendrel {

class Classifier;
class DriftHandling;
class ModeContext;
class ModeSuggestions;

/// Takes what happens on the desktop to the parts that judge it. Main thread.
class EventRouter {
public:
    EventRouter(WindowTitles& titles, Classifier& classifier, DriftHandling& drift, ModeSuggestions& suggestions,
                ModeContext& context);

    std::function<bool()> isOnboardingDone = [] { return true; };

    /// Another application came to the front; nothing: no window is active.
    void appDidActivate(const std::optional<RunningApp>& app);
    /// The front application or the title of its window changed.
    void windowDidChange(const std::optional<WindowTitles::Front>& front);
    /// A browser told of its active tab.
    void tabDidChange(const BrowserTab& tab);
    /// The user asks about a page, in the browser.
    void pageAskedFor(TabKey tab);
    /// Judges what is in front once more, when what it is judged by has changed.
    void judgeFrontAgain();
    /// The page that the user looks at, unless nothing of it may be kept.
    std::optional<ModeSnapshot::Page> frontPage() const;

private:
    WindowTitles& m_titles;
    Classifier& m_classifier;
    DriftHandling& m_drift;
    ModeSuggestions& m_suggestions;
    ModeContext& m_context;
    qint64 m_frontPid = 0; ///< 0: nothing is in front
};

} // namespace fendrel
