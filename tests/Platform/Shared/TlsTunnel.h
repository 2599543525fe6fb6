#pragma once

#include <QSslConfiguration>
#include <QSslSocket>
#include <QStringList>
#include <QTcpServer>

namespace fendrel {

/// A proxy that leads to itself: whoever asks it for a host gets that host's part from it, in TLS.
class TlsTunnel final : public QTcpServer {
public:
    explicit TlsTunnel(const QSslConfiguration& configuration) : m_configuration(configuration) {}

    QByteArrayList heads; ///< what was said before the encryption

protected:
    void incomingConnection(qintptr descriptor) override {
        auto* const socket = new QSslSocket(this);
        socket->setSslConfiguration(m_configuration);
        socket->setSocketDescriptor(descriptor);
        connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QSslSocket::readyRead, socket, [this, socket, head = QByteArray()]() mutable {
            head += socket->readAll();
            if (!head.endsWith("\r\n\r\n"))
                return;
            heads.append(head);
            socket->disconnect(SIGNAL(readyRead()));
            connect(socket, &QSslSocket::encrypted, socket, [this, socket] { addPendingConnection(socket); });
            socket->write("HTTP/1.1 200 Connection established\r\n\r\n");
            socket->startServerEncryption();
        });
    }

private:
    QSslConfiguration m_configuration;
};

} // namespace fendrel
