#pragma once

#include "Base/FileDescriptor.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <map>
#include <memory>

namespace fendrel {

/// Serves lines to and from other programs of this user over a Unix socket. Main thread; no call waits. What a
/// connection sends is taken in small pieces, between which everything else has its turn.
class LineServer : public QObject {
    Q_OBJECT
public:
    using ConnectionID = int;

    /// `isAllowed` is asked about the socket of each new connection.
    explicit LineServer(std::function<bool(int socket)> isAllowed);
    ~LineServer() override; ///< takes its socket's file away

    std::function<void(ConnectionID)> onConnected = [](ConnectionID) {};
    /// Whole lines without their newlines, in order: what one read brought.
    std::function<void(ConnectionID, const QList<QByteArray>&)> onLines = [](ConnectionID, const auto&) {};
    /// The connection is gone; not called for the ones that `drop` ends.
    std::function<void(ConnectionID)> onGone = [](ConnectionID) {};

    /// Opens the socket in a folder that becomes its owner's alone. A file that was left at the path is replaced, a
    /// socket that somebody listens on is not. An empty answer is success; else it says what is wrong.
    [[nodiscard]] QString listen(const QString& path);

    /// Sends a line that ends with its newline. A peer that leaves more than 4 MiB unread is cut off.
    void send(ConnectionID id, const QByteArray& line);
    void drop(ConnectionID id);

private:
    struct Connection;

    void accept();
    void receive(ConnectionID id);
    void flush(ConnectionID id);
    void lose(ConnectionID id);

    std::function<bool(int)> m_isAllowed;
    QByteArray m_path; ///< empty while nothing listens
    quint64 m_inode = 0;
    FileDescriptor m_socket;
    FileDescriptor m_spare; ///< given up to refuse a connection when there is no other descriptor left
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::map<ConnectionID, std::unique_ptr<Connection>> m_connections;
    ConnectionID m_nextID = 0;
};

} // namespace fendrel
