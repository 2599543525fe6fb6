#pragma once

#include "Focus/BrowserTab.h"

#include <QJsonObject>
#include <QObject>

#include <map>

namespace fendrel {

class BrowserBridge;
class Classifier;
class FocusSession;
class ModeEngine;
class SiteDrift;

/// Keeps the extension in each browser told what it shows: the mode, the session, and how its page is judged. One
/// browser is told nothing of another's pages. Main thread.
class BrowserStates : public QObject {
    Q_OBJECT
public:
    BrowserStates(ModeEngine& engine, Classifier& classifier, const FocusSession& focus, SiteDrift& sites,
                  BrowserBridge& bridge);

private:
    void schedule();
    void tell();
    QJsonObject state(BrowserID browser) const;
    QJsonValue page(const BrowserTab& tab) const;

    ModeEngine& m_engine;
    Classifier& m_classifier;
    const FocusSession& m_focus;
    SiteDrift& m_sites;
    BrowserBridge& m_bridge;
    std::map<BrowserID, QJsonObject> m_told;
    bool m_isDue = false;
};

} // namespace fendrel
