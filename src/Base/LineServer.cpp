#include "Base/LineServer.h"

#include "Base/LineFramer.h"
#include "Base/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestBacklog = qsizetype{4} * 1024 * 1024;
// A score of lines, so that even costly ones leave the interface its frames.
constexpr std::size_t pieceSize = 2'048;

QString reason() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

FileDescriptor makeSocket() {
    return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM, 0));
}

bool setUp(int socket) {
    return ::fcntl(socket, F_SETFD, FD_CLOEXEC) == 0 && ::fcntl(socket, F_SETFL, O_NONBLOCK) == 0;
}

quint64 inode(const QByteArray& path) {
    struct stat facts {};
    return ::lstat(path.constData(), &facts) == 0 ? static_cast<quint64>(facts.st_ino) : 0;
}

bool isAnswered(const sockaddr_un& address) {
    const FileDescriptor probe = makeSocket();
    // A listener that is too busy to take another connection is alive all the same.
    return probe && setUp(probe.get()) &&
           (::connect(probe.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0 ||
            errno == EAGAIN || errno == EINPROGRESS);
}

} // namespace

struct LineServer::Connection {
    FileDescriptor socket;
    std::unique_ptr<QSocketNotifier> readable, writable;
    LineFramer framer;
    QByteArray unsent;
};

LineServer::LineServer(std::function<bool(int)> isAllowed) : m_isAllowed(std::move(isAllowed)) {}

LineServer::~LineServer() {
    // Not a file that somebody else put there meanwhile.
    if (!m_path.isEmpty() && inode(m_path) == m_inode)
        ::unlink(m_path.constData());
}

QString LineServer::listen(const QString& path) {
    const QByteArray bytes = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    constexpr qsizetype longest = sizeof(address.sun_path) - 1;
    if (bytes.size() > longest)
        return u"the path is longer than the %1 bytes that a socket's path may have"_s.arg(longest);
    std::memcpy(address.sun_path, bytes.constData(), static_cast<std::size_t>(bytes.size()));

    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder))
        return u"the folder cannot be made"_s;
    if (::chmod(QFile::encodeName(folder).constData(), S_IRWXU) != 0)
        return u"the folder cannot be made the user's own: "_s + reason();
    if (isAnswered(address))
        return u"another program listens there"_s;
    ::unlink(bytes.constData());

    FileDescriptor socket = makeSocket();
    if (!socket || !setUp(socket.get()) ||
        ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0)
        return reason();
    if (::chmod(bytes.constData(), S_IRUSR | S_IWUSR) != 0 || ::listen(socket.get(), SOMAXCONN) != 0) {
        QString problem = reason();
        ::unlink(bytes.constData());
        return problem;
    }
    m_socket = std::move(socket);
    m_spare = FileDescriptor(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    m_path = bytes;
    m_inode = inode(bytes);
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &LineServer::accept);
    return {};
}

void LineServer::accept() {
    FileDescriptor socket(::accept(m_socket.get(), nullptr, nullptr));
    if (!socket) {
        // A connection that waits would have us called again and again.
        if (errno == EMFILE || errno == ENFILE) {
            m_spare = {};
            socket = FileDescriptor(::accept(m_socket.get(), nullptr, nullptr));
            socket = {};
            m_spare = FileDescriptor(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        }
        return;
    }
    if (!m_isAllowed(socket.get())) {
        qCWarning(logFiles).noquote() << "Refused a connection of another user at" << m_path;
        return;
    }
    if (!setUp(socket.get()))
        return;
    const ConnectionID id = m_nextID++;
    auto connection = std::make_unique<Connection>();
    connection->readable = std::make_unique<QSocketNotifier>(socket.get(), QSocketNotifier::Read);
    connection->writable = std::make_unique<QSocketNotifier>(socket.get(), QSocketNotifier::Write);
    connection->writable->setEnabled(false);
    connection->socket = std::move(socket);
    connect(connection->readable.get(), &QSocketNotifier::activated, this, [this, id] { receive(id); });
    connect(connection->writable.get(), &QSocketNotifier::activated, this, [this, id] { flush(id); });
    m_connections.emplace(id, std::move(connection));
    onConnected(id);
}

void LineServer::receive(ConnectionID id) {
    const auto found = m_connections.find(id);
    if (found == m_connections.end())
        return;
    std::array<char, pieceSize> piece; // NOLINT(cppcoreguidelines-pro-type-member-init): read before it is used
    const auto count = ::recv(found->second->socket.get(), piece.data(), piece.size(), 0);
    if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR))
        return;
    if (count <= 0) {
        lose(id);
        return;
    }
    QList<QByteArray> lines;
    const bool isSound =
        found->second->framer.feed({piece.data(), static_cast<std::size_t>(count)}, [&](std::string_view line) {
            lines.append(QByteArray(line.data(), static_cast<qsizetype>(line.size())));
        });
    if (!lines.isEmpty())
        onLines(id, lines);
    if (!isSound)
        lose(id);
}

void LineServer::send(ConnectionID id, const QByteArray& line) {
    const auto found = m_connections.find(id);
    if (found == m_connections.end())
        return;
    Connection& connection = *found->second;
    const bool isWaiting = !connection.unsent.isEmpty();
    connection.unsent.append(line);
    if (!isWaiting)
        flush(id);
    // Told in a later turn: whoever sends is not to lose the connection under its hands.
    if (connection.unsent.size() > longestBacklog)
        ::shutdown(connection.socket.get(), SHUT_RDWR);
}

void LineServer::flush(ConnectionID id) {
    const auto found = m_connections.find(id);
    if (found == m_connections.end())
        return;
    Connection& connection = *found->second;
    qsizetype sent = 0;
    while (sent < connection.unsent.size()) {
        const auto count = ::send(connection.socket.get(), connection.unsent.constData() + sent,
                                  static_cast<std::size_t>(connection.unsent.size() - sent), MSG_NOSIGNAL);
        if (count > 0)
            sent += count;
        else if (errno == EAGAIN || errno == EWOULDBLOCK)
            break;
        else if (errno != EINTR)
            sent = connection.unsent.size(); // the peer is gone, as reading is about to tell
    }
    connection.unsent.remove(0, sent);
    connection.writable->setEnabled(!connection.unsent.isEmpty());
}

void LineServer::drop(ConnectionID id) {
    const auto found = m_connections.find(id);
    if (found == m_connections.end())
        return;
    // One of the notifiers may be the one that called us.
    for (auto* notifier : {&found->second->readable, &found->second->writable}) {
        (*notifier)->setEnabled(false);
        notifier->release()->deleteLater();
    }
    m_connections.erase(found);
}

void LineServer::lose(ConnectionID id) {
    if (!m_connections.contains(id))
        return;
    drop(id);
    onGone(id);
}

} // namespace fendrel
