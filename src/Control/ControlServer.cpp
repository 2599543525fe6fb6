#include "Control/ControlServer.h"

#include "App/AppController.h"
#include "Base/Log.h"
#include "Control/Protocol.h"
#include "Control/Status.h"

#include <QFile>
#include <QLocalSocket>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace fendrel::control {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestBacklog = qint64{4} * 1024 * 1024; // bytes that a client may leave unread

bool isOwnUser(qintptr descriptor) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    return ::getsockopt(static_cast<int>(descriptor), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::getuid();
}

} // namespace

ControlServer::ControlServer(AppController& controller, const QString& dataFolder)
    : m_controller(controller), m_path(socketPath(dataFolder)), m_handlers(controller) {
    connect(&m_server, &QLocalServer::newConnection, this, &ControlServer::accept);
    // Anything that the status shows may have changed with any of these.
    connect(&controller.engine(), &ModeEngine::changed, this, &ControlServer::scheduleReport);
    connect(&controller.focus(), &FocusSession::changed, this, &ControlServer::scheduleReport);
    connect(&controller.titles(), &WindowTitles::changed, this, &ControlServer::scheduleReport);
    connect(&controller.classifier(), &Classifier::changed, this, &ControlServer::scheduleReport);
    connect(&controller.gate(), &Gate::changed, this, &ControlServer::scheduleReport);
    connect(&controller.budget(), &DriftBudget::changed, this, &ControlServer::scheduleReport);
    connect(&controller, &AppController::dockVisibilityChanged, this, &ControlServer::scheduleReport);
    connect(&controller, &AppController::onboardingChanged, this, &ControlServer::scheduleReport);
}

ControlServer::~ControlServer() {
    // The sockets go with the server, after the list of clients that they would be struck off from.
    for (const auto& [socket, client] : m_clients)
        socket->disconnect(this);
}

bool ControlServer::listen() {
    constexpr qsizetype longest = sizeof(sockaddr_un::sun_path) - 1;
    if (QFile::encodeName(m_path).size() > longest) {
        qCWarning(logControl).noquote() << "No control socket:" << m_path << "is longer than the" << longest
                                        << "bytes that a socket's path may have";
        return false;
    }
    QFile::remove(m_path);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server.listen(m_path)) {
        qCWarning(logControl).noquote() << "No control socket at" << m_path + u":"_s << m_server.errorString();
        return false;
    }
    return true;
}

void ControlServer::accept() {
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        if (!isOwnUser(socket->socketDescriptor())) {
            qCWarning(logControl) << "Refused a connection of another user";
            delete socket;
            continue;
        }
        m_clients.try_emplace(socket);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { receive(socket); });
        connect(socket, &QLocalSocket::disconnected, this, [this, socket] {
            m_clients.erase(socket);
            socket->deleteLater();
        });
        receive(socket);
    }
}

void ControlServer::receive(QLocalSocket* socket) {
    const auto client = m_clients.find(socket);
    if (client == m_clients.end())
        return;
    QList<QByteArray> lines;
    const QByteArray bytes = socket->readAll();
    const bool isSound = client->second.framer.feed(
        {bytes.constData(), static_cast<std::size_t>(bytes.size())},
        [&](std::string_view line) { lines.append(QByteArray(line.data(), static_cast<qsizetype>(line.size()))); });
    for (const QByteArray& line : lines) {
        handle(socket, line);
        // Answering is how it shows that the other end is gone.
        if (!m_clients.contains(socket))
            return;
        if (socket->bytesToWrite() > longestBacklog) {
            socket->abort();
            return;
        }
    }
    if (!isSound)
        socket->abort();
}

void ControlServer::handle(QLocalSocket* socket, const QByteArray& line) {
    const auto request = decodeRequest(line);
    if (!request) {
        socket->write(encode(error(u"that is no request"_s)));
        return;
    }
    if (command(request->command)->isStream) {
        startWatching(socket);
        return;
    }
    const auto answer = m_handlers.run(*request);
    // What the command changed is told before its answer: whoever sent it knows that the stream is complete by then.
    report();
    socket->write(encode(answer ? result(*answer) : error(answer.error())));
    socket->flush();
}

void ControlServer::startWatching(QLocalSocket* socket) {
    report();
    m_reported = status(m_controller, StatusForm::marker);
    m_clients[socket].isWatching = true;
    QJsonObject whole = status(m_controller);
    whole.insert(u"time"_s, toDateTime(m_controller.platform().clock->now()).toString(Qt::ISODateWithMs));
    socket->write(encode(whole));
}

void ControlServer::scheduleReport() {
    const bool hasWatcher = std::ranges::any_of(m_clients, [](const auto& entry) { return entry.second.isWatching; });
    if (!hasWatcher || std::exchange(m_isReportDue, true))
        return;
    // Once for all that one event changes.
    QMetaObject::invokeMethod(this, &ControlServer::report, Qt::QueuedConnection);
}

void ControlServer::report() {
    if (!std::exchange(m_isReportDue, false))
        return;
    const QJsonObject marker = status(m_controller, StatusForm::marker);
    const QJsonObject shown = status(m_controller);
    QJsonObject line;
    for (auto member = marker.begin(); member != marker.end(); ++member) {
        if (m_reported[member.key()] != member.value())
            line.insert(member.key(), shown[member.key()]);
    }
    m_reported = marker;
    if (line.isEmpty())
        return;
    line.insert(u"time"_s, toDateTime(m_controller.platform().clock->now()).toString(Qt::ISODateWithMs));
    const QByteArray bytes = encode(line);
    QList<QLocalSocket*> stuck;
    for (auto& [socket, client] : m_clients) {
        if (client.isWatching)
            socket->write(bytes);
        if (socket->bytesToWrite() > longestBacklog)
            stuck.append(socket);
    }
    for (QLocalSocket* socket : stuck)
        socket->abort();
}

} // namespace fendrel::control
