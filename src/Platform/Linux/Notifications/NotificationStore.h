#pragma once

#include "Base/WallTime.h"

#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

namespace fendrel {

namespace sqlite {
class Database;
struct Error;
} // namespace sqlite

struct NotificationRecord {
    qint64 number{}; ///< a record of the same number in the same run is replaced
    QString application{};
    bool isCritical{};
    QString title{};
    QString body{};
    WallTime date{};
};

/// The file "Notifications.db": the newest records of the last days. A damaged file is kept aside and a fresh one
/// begun. Blocks on the disk; one thread at a time.
class NotificationStore {
public:
    static constexpr qint64 mostRecords = 2000;

    explicit NotificationStore(const QString& folder);
    ~NotificationStore();

    const QString& path() const { return m_path; }

    /// Makes what is missing, and forgets what is too old. Returns what went wrong; empty when nothing did.
    QString open(WallTime now);
    /// All of them in one step, or none. Returns what went wrong.
    QString write(const QList<NotificationRecord>& records);

private:
    bool arrange(WallTime now);
    std::optional<sqlite::Error> put(const QList<NotificationRecord>& records);
    std::optional<qint64> put(const NotificationRecord& record, qint64 id);
    bool prune(WallTime now);
    void forgetOldNumbers();
    void startAnew();

    QString m_folder;
    QString m_path;
    std::shared_ptr<sqlite::Database> m_database;
    QHash<qint64, qint64> m_ids; ///< number -> record
};

} // namespace fendrel
