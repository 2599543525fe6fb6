#pragma once

#include "Base/PropertyList.h"
#include "Base/Sqlite.h"
#include "Ports/NotificationLog.h"

#include <QTemporaryDir>

#include <memory>

namespace fendrel {

/// A log in a temporary folder, to which the test adds what an application would have shown.
class FakeNotificationLog final : public NotificationLog {
public:
    FakeNotificationLog() { begin(); }

    QString databasePath() const override { return m_folder.filePath(QStringLiteral("log.db")); }
    QString unavailableReason() const override { return reason; }
    bool tellsChanges() const override { return tells; }

    struct Entry {
        QString app{};
        QString title{};
        QString body{};
        bool isCritical{};
        std::optional<qint64> replaces{};
        double date = 100; ///< seconds since 2001-01-01
    };

    static QByteArray data(const Entry& entry) {
        QVariantMap record{{QStringLiteral("req"), QVariantMap{{QStringLiteral("titl"), entry.title},
                                                               {QStringLiteral("subt"), QString()},
                                                               {QStringLiteral("body"), entry.body}}}};
        if (entry.isCritical)
            record.insert(QStringLiteral("crit"), true);
        return propertyList::write(record);
    }

    /// The id of the record.
    qint64 add(const Entry& entry) {
        const qint64 id = entry.replaces.value_or(m_lastID + 1);
        m_lastID = qMax(m_lastID, id);
        run(QStringLiteral("INSERT OR IGNORE INTO app (identifier) VALUES ('%1')").arg(entry.app));
        run(QStringLiteral(
                "INSERT OR REPLACE INTO record VALUES (%1, (SELECT app_id FROM app WHERE identifier = '%2'), "
                "randomblob(16), x'%3', NULL, %4)")
                .arg(id)
                .arg(entry.app, QString::fromLatin1(data(entry).toHex()))
                .arg(entry.date));
        return id;
    }

    void run(const QString& sql) {
        if (!m_database->run(sql))
            qFatal("%s", qUtf8Printable(m_database->lastError().text));
    }

    /// Another file under the same name, as when the system makes its log anew.
    void replaceFile() {
        m_database.reset();
        for (const auto* suffix : {"", "-wal", "-shm"})
            QFile::remove(databasePath() + QLatin1StringView(suffix));
        begin();
    }
    void removeFile() { QFile::remove(databasePath()); }

    QString reason;
    bool tells = false;

private:
    void begin() {
        m_database = *sqlite::Database::open(databasePath());
        run(QStringLiteral("PRAGMA journal_mode = WAL"));
        run(QStringLiteral("CREATE TABLE app (app_id INTEGER PRIMARY KEY, identifier TEXT UNIQUE)"));
        run(QStringLiteral("CREATE TABLE record (rec_id INTEGER PRIMARY KEY, app_id INTEGER, uuid BLOB, data BLOB, "
                           "request_date REAL, delivered_date REAL)"));
    }

    QTemporaryDir m_folder;
    std::shared_ptr<sqlite::Database> m_database;
    qint64 m_lastID = 0;
};

} // namespace fendrel
