#pragma once

#include "Base/LineServer.h"
#include "Control/CommandHandlers.h"

#include <QJsonObject>
#include <QObject>

#include <set>

namespace fendrel {

class AppController;

namespace control {

/// Lets scripts and other programs of this user drive the application through a socket. Main thread.
class ControlServer : public QObject {
    Q_OBJECT
public:
    ControlServer(AppController& controller, const QString& dataFolder);

    /// To be called while this process holds the instance lock: whatever lies at the socket's path is then left over.
    /// False, with a line in the log, when the socket cannot be opened; everything else works without it.
    bool listen();

private:
    void handle(LineServer::ConnectionID client, const QByteArray& line);
    void startWatching(LineServer::ConnectionID client);
    void scheduleReport();
    void report();

    AppController& m_controller;
    QString m_path;
    CommandHandlers m_handlers;
    LineServer m_server;
    std::set<LineServer::ConnectionID> m_watchers;
    QJsonObject m_reported; ///< marker of what the watchers were told last
    bool m_isReportDue = false;
};

} // namespace control
} // namespace fendrel
