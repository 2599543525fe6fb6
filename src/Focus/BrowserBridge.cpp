#include "Focus/BrowserBridge.h"

#include "Base/BridgeProtocol.h"
#include "Base/Log.h"
#include "Base/Overloaded.h"
#include "Focus/BridgeMessage.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>
#include <vector>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QJsonObject message(std::string_view type, TabID tab) {
    return {{u"type"_s, bridge::text(type)}, {u"tabId"_s, static_cast<qint64>(tab)}};
}

} // namespace

BrowserBridge::BrowserBridge(Applications& applications, std::function<bool(int)> isPeerOwnUser)
    : m_applications(applications), m_server(std::move(isPeerOwnUser)) {
    m_server.onLines = [this](LineServer::ConnectionID id, const QList<QByteArray>& lines) {
        received(BrowserID(id), lines);
    };
    m_server.onGone = [this](LineServer::ConnectionID id) { gone(BrowserID(id)); };
}

void BrowserBridge::listen(const QString& dataFolder) {
    if (m_isListening)
        return;
    const QString path = dataFolder + u'/' + bridge::text(bridge::socketFile);
    const QString problem = m_server.listen(path);
    m_isListening = problem.isEmpty();
    if (!m_isListening)
        qCWarning(logFocus).noquote() << "Browsers can't reach us, no socket at" << path + u":"_s << problem;
}

const BrowserBridge::Browser* BrowserBridge::browser(BrowserID id) const {
    const auto found = std::ranges::find(m_browsers, id, &Browser::id);
    return found == m_browsers.end() ? nullptr : &*found;
}

void BrowserBridge::received(BrowserID id, const QList<QByteArray>& lines) {
    std::vector<bridge::Message> messages;
    for (const QByteArray& line : lines) {
        auto message = bridge::parse(line);
        if (!message)
            continue;
        // Of a page that changes its title faster than we look, the last one counts.
        if (!messages.empty() && bridge::replaces(*message, messages.back()))
            messages.back() = std::move(*message);
        else
            messages.push_back(std::move(*message));
    }
    for (const bridge::Message& message : messages) {
        std::visit(Overloaded{[&](const bridge::Hello& greeting) { hello(id, greeting.pids); },
                              [&](const bridge::TabReport& report) {
                                  onTab({.browser = id,
                                         .tabID = report.tabID,
                                         .url = report.url,
                                         .title = report.title,
                                         .isFocused = report.isFocused,
                                         .isPrivate = report.isPrivate});
                              },
                              [&](const bridge::Ask& ask) { onAsk(id, ask.tabID); },
                              [&](const bridge::Closed& closed) { onClosed(id, closed.tabID); }},
                   message);
    }
}

void BrowserBridge::hello(BrowserID id, const QList<qint64>& pids) {
    m_pids[id] = pids;
    const Browser known{.id = id, .app = application(pids)};
    const auto found = std::ranges::find(m_browsers, id, &Browser::id);
    if (found == m_browsers.end())
        m_browsers.append(known);
    else
        *found = known;
    Q_EMIT changed();
}

void BrowserBridge::gone(BrowserID id) {
    m_pids.erase(id);
    m_browsers.removeIf([id](const Browser& browser) { return browser.id == id; });
    onGone(id);
    Q_EMIT changed();
}

std::optional<RunningApp> BrowserBridge::application(const QList<qint64>& pids) const {
    const QList<RunningApp> running = m_applications.running();
    const auto found = std::ranges::find_if(running, [&](const RunningApp& app) { return pids.contains(app.pid); });
    return found == running.end() ? std::nullopt : std::optional(*found);
}

void BrowserBridge::runningChanged() {
    bool hasChanged = false;
    for (Browser& browser : m_browsers) {
        auto app = application(m_pids[browser.id]);
        hasChanged |= app != browser.app;
        browser.app = std::move(app);
    }
    if (hasChanged)
        Q_EMIT changed();
}

void BrowserBridge::veil(const Tab& tab, const QString& site, const Mode& owner) {
    QJsonObject veil = message(bridge::typeVeil, tab.tabID);
    veil.insert(u"site"_s, site);
    veil.insert(u"mode"_s, owner.name);
    veil.insert(u"color"_s, hex(owner.tint));
    send(veil, tab.browser);
}

void BrowserBridge::unveil(TabKey tab) {
    send(message(bridge::typeUnveil, tab.tab), tab.browser);
}

void BrowserBridge::back(TabKey tab) {
    send(message(bridge::typeBack, tab.tab), tab.browser);
}

bool BrowserBridge::open(const QStringList& urls) {
    if (m_browsers.isEmpty())
        return false;
    const auto frontmost = m_applications.frontmost();
    const auto isInFront = [&](const Browser& browser) {
        return frontmost && browser.app && browser.app->pid == frontmost->pid;
    };
    const auto found = std::ranges::find_if(m_browsers, isInFront);
    const Browser& chosen = found == m_browsers.end() ? m_browsers.last() : *found;
    send({{u"type"_s, bridge::text(bridge::typeOpen)}, {u"urls"_s, QJsonArray::fromStringList(urls)}}, chosen.id);
    return true;
}

void BrowserBridge::send(const QJsonObject& message, BrowserID id) {
    m_server.send(static_cast<int>(id), QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n');
}

} // namespace fendrel
