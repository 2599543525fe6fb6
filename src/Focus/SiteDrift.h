#pragma once

#include "Focus/BrowserTab.h"
#include "Focus/DriftDecision.h"
#include "Focus/Gate.h"
#include "Focus/Judgement.h"
#include "Ports/Clock.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <map>
#include <optional>

namespace fendrel {

class Applications;
class BrowserBridge;
class Classifier;
class FocusSession;
class ModeEngine;
struct RunningApp;

/// What becomes of the pages in browsers: a page that is to be stopped is veiled in its tab at once, and the gate asks
/// about it a moment later, if the user is still there. Main thread.
class SiteDrift : public QObject {
    Q_OBJECT
public:
    struct Veiled {
        BrowserTab tab{};
        QString site{};
        Mode owner{};
        std::optional<QString> note{};
        bool asked{}; ///< the gate was shown for it, and nothing has put it away unanswered
    };

    SiteDrift(ModeEngine& engine, Classifier& classifier, const FocusSession& focus, Gate& gate, BrowserBridge& bridge,
              Applications& applications, Clock& clock);

    std::function<void(const Subject&, const BrowserTab&)> classify = [](const Subject&, const BrowserTab&) {};

    // What browsers tell
    void remember(const BrowserTab& tab); ///< it is its browser's active tab from now on
    void judge(const BrowserTab& tab);
    void askedFor(TabKey tab); ///< by the user, in the browser
    void tabClosed(TabKey tab);
    void browserGone(BrowserID browser);

    /// The active tab of the browser with that process; of its several connections (a browser has one for each
    /// profile), of the one whose window had the focus last.
    std::optional<BrowserTab> activeTab(qint64 pid) const;
    std::optional<BrowserTab> activeTab(BrowserID browser) const;
    const QList<Veiled>& veiledTabs() const { return m_veiled; }
    bool isAllowedOnce(const QString& site) const { return m_allowedOnce.contains(site); }
    bool isStopped(const QString& site) const; ///< a session is on, and it certainly belongs to another mode

    drift::Decision decide(const Verdict& verdict, const QString& site) const;
    void act(const Verdict& verdict, const SiteSubject& site, const BrowserTab& tab);

    // The gate's answers about a site
    void stay(const Gate::Site& site);
    void letThrough(const Gate::Site& site);
    void allowOnce(const QString& site) { m_allowedOnce.insert(site); } ///< for the rest of the session

    /// Another application is in front: the question about a page of another one is put off.
    void frontChanged(const RunningApp& app);
    void windowsGone(const QString& bundleID);
    void review(); ///< modes or answers changed: lifts the veils of what is not stopped any more
    void focusStopped();

Q_SIGNALS:
    void changed();

private:
    struct Active {
        BrowserTab tab{};
        quint64 order{}; ///< of its last report with the focus; 0: it had none
    };
    struct Pending {
        TabKey tab{};
        QString site{};
        Handle timer{};
    };

    bool shows(TabKey tab, const QString& site) const;
    bool mayBeInFront(BrowserID id) const;
    const RunningApp* askedBrowser() const;
    Veiled* veiled(TabKey tab);
    const Mode* owner(const QString& site) const;
    void showGate(const QString& site, const BrowserTab& tab, const Mode& owner, const std::optional<QString>& note);
    void veil(const BrowserTab& tab, const QString& site, const Mode& owner, const std::optional<QString>& note);
    void unveil(TabKey tab);
    void forget(TabKey tab);
    void ask(TabKey tab);
    void putOff();
    void comeForward(BrowserID id);
    void stayEnded();

    ModeEngine& m_engine;
    Classifier& m_classifier;
    const FocusSession& m_focus;
    Gate& m_gate;
    BrowserBridge& m_bridge;
    Applications& m_applications;
    Clock& m_clock;

    std::map<BrowserID, Active> m_activeTabs;
    quint64 m_reports = 0;
    QList<Veiled> m_veiled;
    QSet<QString> m_allowedOnce;
    std::optional<Pending> m_pendingAsk;
    /// The page that a stay action is leaving: until it is left, what is told of it is no new visit.
    std::optional<Gate::Site> m_leaving;
    Handle m_stayEnd;
};

} // namespace fendrel
