#pragma once

#include "Base/Sqlite.h"
#include "Messages/NotificationKeys.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

namespace fendrel {

/// A record that was not in the log before.
struct NotificationRow {
    qint64 id{};
    QString app{};     ///< bundle identifier
    QByteArray data{}; ///< property list
    double date{};     ///< seconds since 2001-01-01 UTC
};

/// Finds out what is new in the system's log of notifications, without writing to it. Where nothing changed it knows so
/// without looking at the records. May block for as long as another program locks the log; one thread at a time.
class NotificationReader {
public:
    explicit NotificationReader(QString path) : m_path(std::move(path)) {}

    /// The new records by their date; none the first time, when what is there is only remembered. Nothing when the log
    /// could not be read: what was remembered stays, and the next read tries again.
    std::optional<QList<NotificationRow>> read();

private:
    /// Which file is open: a log that was replaced is another one under the same name.
    struct File {
        quint64 device{};
        quint64 inode{};
        bool operator==(const File&) const = default;
    };
    struct Connection {
        std::shared_ptr<sqlite::Database> database;
        sqlite::Statement version;
        File file{};
    };

    std::optional<File> file() const;
    static std::optional<Connection> connect(const QString& path, const File& file);
    std::optional<QList<NotificationRow>> readAll();
    std::optional<QList<NotificationRow>> rows(const QList<qint64>& ids);

    QString m_path;
    std::optional<Connection> m_connection;
    std::optional<qint64> m_version; ///< of the log when it was last read whole
    std::optional<NotificationKeys> m_seen;
};

} // namespace fendrel
