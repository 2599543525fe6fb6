#include "Focus/BrowserStates.h"

#include "Base/BridgeProtocol.h"
#include "Base/EnumNames.h"
#include "Focus/BridgeMessage.h"
#include "Focus/BrowserBridge.h"
#include "Focus/Classifier.h"
#include "Focus/FocusSession.h"
#include "Focus/SiteDrift.h"
#include "Modes/ModeEngine.h"

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QJsonObject shown(const Mode& mode) {
    return {{u"name"_s, mode.name}, {u"color"_s, hex(mode.tint)}};
}

} // namespace

BrowserStates::BrowserStates(ModeEngine& engine, Classifier& classifier, const FocusSession& focus, SiteDrift& sites,
                             BrowserBridge& bridge)
    : m_engine(engine), m_classifier(classifier), m_focus(focus), m_sites(sites), m_bridge(bridge) {
    connect(&engine, &ModeEngine::changed, this, &BrowserStates::schedule);
    connect(&classifier, &Classifier::changed, this, &BrowserStates::schedule);
    connect(&focus, &FocusSession::changed, this, &BrowserStates::schedule);
    connect(&sites, &SiteDrift::changed, this, &BrowserStates::schedule);
    connect(&bridge, &BrowserBridge::changed, this, &BrowserStates::schedule);
}

/// Once for all that one event changes.
void BrowserStates::schedule() {
    if (!m_bridge.browsers().isEmpty() && !std::exchange(m_isDue, true))
        QMetaObject::invokeMethod(this, &BrowserStates::tell, Qt::QueuedConnection);
}

void BrowserStates::tell() {
    m_isDue = false;
    std::erase_if(m_told, [this](const auto& entry) { return !m_bridge.browser(entry.first); });
    for (const auto& browser : m_bridge.browsers()) {
        QJsonObject now = state(browser.id);
        QJsonObject& told = m_told[browser.id];
        if (now == told)
            continue;
        told = std::move(now);
        m_bridge.send(told, browser.id);
    }
}

QJsonObject BrowserStates::state(BrowserID browser) const {
    const auto tab = m_sites.activeTab(browser);
    return {{u"type"_s, bridge::text(bridge::typeState)},
            {u"mode"_s, shown(m_engine.current())},
            {u"focus"_s, m_focus.isOn()},
            {u"page"_s, tab ? page(*tab) : QJsonValue()}};
}

QJsonValue BrowserStates::page(const BrowserTab& tab) const {
    const auto site = tab.site();
    if (!site)
        return {};
    QJsonObject page{{u"tabId"_s, static_cast<qint64>(tab.tabID)},
                     {u"site"_s, *site},
                     {u"isAllowed"_s, m_sites.isAllowedOnce(*site)}};
    const SiteSubject subject{.host = *site, .title = tab.title};
    auto verdict = m_classifier.known(subject);
    const auto& front = m_classifier.front();
    const bool isFront = front && front->subject == Subject(subject);
    if (!verdict && isFront)
        verdict = front->verdict; // what nobody is sure enough of to remember
    page.insert(u"state"_s, verdict ? u"judged"_s : isFront ? u"asking"_s : u"unknown"_s);
    if (!verdict)
        return page;
    const Mode* mode = verdict->modeID ? m_engine.mode(*verdict->modeID) : nullptr;
    page.insert(u"mode"_s, mode ? QJsonValue(shown(*mode)) : QJsonValue());
    page.insert(u"isCurrent"_s, mode && mode->id == m_engine.current().id);
    page.insert(u"what"_s, verdict->what);
    page.insert(u"certainty"_s, enumName(verdict->certainty));
    page.insert(u"source"_s, enumName(verdict->source));
    return page;
}

} // namespace fendrel
