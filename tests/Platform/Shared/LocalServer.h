#pragma once

#include <QHostAddress>
#include <QPointer>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>
#include <memory>

namespace fendrel {

/// A web server in the test process: says what it is told, byte for byte, to each connection's first request.
class LocalServer {
public:
    /// What the next requests get; nothing queued means silence. A connection stays open after its answer.
    QByteArrayList answers;
    QByteArrayList requests;
    int connections = 0;
    QPointer<QTcpSocket> lastSocket;
    std::function<void()> onRequest = [] {};
    std::function<void()> onDisconnected = [] {};

    explicit LocalServer(std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>())
        : m_server(std::move(server)) {
        QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(), [this] {
            while (auto* const socket = m_server->nextPendingConnection())
                serve(socket);
        });
        m_server->listen(QHostAddress::LocalHost);
    }

    QUrl url(const QString& path, const QString& scheme = QStringLiteral("http")) const {
        return QUrl(QStringLiteral("%1://127.0.0.1:%2%3").arg(scheme).arg(m_server->serverPort()).arg(path));
    }

private:
    void serve(QTcpSocket* socket) {
        ++connections;
        lastSocket = socket;
        const auto received = std::make_shared<QByteArray>();
        const auto read = [this, socket, received] {
            *received += socket->readAll();
            const auto headEnd = received->indexOf("\r\n\r\n");
            if (headEnd < 0 || received->size() < headEnd + 4 + bodyLength(received->left(headEnd)))
                return;
            requests.append(std::exchange(*received, {}));
            if (!answers.isEmpty())
                socket->write(answers.takeFirst());
            onRequest();
        };
        QObject::connect(socket, &QTcpSocket::readyRead, m_server.get(), read);
        QObject::connect(socket, &QTcpSocket::disconnected, m_server.get(), [this] { onDisconnected(); });
        read();
    }

    static qsizetype bodyLength(const QByteArray& head) {
        for (const auto& line : head.split('\n')) {
            if (line.toLower().startsWith("content-length:"))
                return line.mid(15).trimmed().toInt();
        }
        return 0;
    }

    std::unique_ptr<QTcpServer> m_server;
};

} // namespace fendrel
