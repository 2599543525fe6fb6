#pragma once

#include "Base/LineServer.h"
#include "Focus/BrowserTab.h"
#include "Modes/Mode.h"
#include "Ports/Applications.h"

#include <QJsonObject>
#include <QObject>

#include <functional>
#include <map>
#include <optional>

namespace fendrel {

/// Talks to the extension in each browser, which reaches us through the relay that the browser starts. Main thread.
/// Base/BridgeProtocol.h says what is exchanged.
class BrowserBridge : public QObject {
    Q_OBJECT
public:
    using Tab = BrowserTab;
    struct Browser {
        BrowserID id{};
        std::optional<RunningApp> app{}; ///< nothing while the system knows no application of its processes
        bool operator==(const Browser&) const = default;
    };

    BrowserBridge(Applications& applications, std::function<bool(int socket)> isPeerOwnUser);

    std::function<void(const Tab&)> onTab = [](const Tab&) {}; ///< the active tab, whenever it changes
    std::function<void(BrowserID, TabID)> onAsk = [](BrowserID, TabID) {};
    std::function<void(BrowserID, TabID)> onClosed = [](BrowserID, TabID) {}; ///< a tab that was veiled
    std::function<void(BrowserID)> onGone = [](BrowserID) {};

    /// Opens the socket in the data folder. When that fails, with a line in the log, nothing is known of sites.
    void listen(const QString& dataFolder);

    const QList<Browser>& browsers() const { return m_browsers; } ///< in the order in which they said hello
    const Browser* browser(BrowserID id) const;
    /// Applications came or went: a browser may have become one that the system knows.
    void runningChanged();

    void veil(const Tab& tab, const QString& site, const Mode& owner);
    void unveil(TabKey tab);
    void back(TabKey tab); ///< the tab is to leave its page
    /// In the browser that is in front, else in the one that connected last. False when there is none.
    bool open(const QStringList& urls);
    void send(const QJsonObject& message, BrowserID id);

Q_SIGNALS:
    void changed();

private:
    void received(BrowserID id, const QList<QByteArray>& lines);
    void hello(BrowserID id, const QList<qint64>& pids);
    void gone(BrowserID id);
    std::optional<RunningApp> application(const QList<qint64>& pids) const;

    Applications& m_applications;
    LineServer m_server;
    QList<Browser> m_browsers;
    std::map<BrowserID, QList<qint64>> m_pids;
    bool m_isListening = false;
};

} // namespace fendrel
