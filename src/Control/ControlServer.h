#pragma once

#include "Base/LineFramer.h"
#include "Control/CommandHandlers.h"

#include <QJsonObject>
#include <QLocalServer>
#include <QObject>

#include <map>

class QLocalSocket;

namespace fendrel {

class AppController;

namespace control {

/// Lets scripts and other programs of this user drive the application through a socket. Main thread.
class ControlServer : public QObject {
    Q_OBJECT
public:
    ControlServer(AppController& controller, const QString& dataFolder);
    ~ControlServer() override;

    /// To be called while this process holds the instance lock: whatever lies at the socket's path is then left over.
    /// False, with a line in the log, when the socket cannot be opened; everything else works without it.
    bool listen();

private:
    struct Client {
        LineFramer framer;
        bool isWatching = false;
    };

    void accept();
    void receive(QLocalSocket* socket);
    void handle(QLocalSocket* socket, const QByteArray& line);
    void startWatching(QLocalSocket* socket);
    void scheduleReport();
    void report();

    AppController& m_controller;
    QString m_path;
    CommandHandlers m_handlers;
    QLocalServer m_server;
    std::map<QLocalSocket*, Client> m_clients;
    QJsonObject m_reported; ///< marker of what the watchers were told last
    bool m_isReportDue = false;
};

} // namespace control
} // namespace fendrel
