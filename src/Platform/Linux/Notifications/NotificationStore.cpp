#include "Platform/Linux/Notifications/NotificationStore.h"

#include "Base/JsonFile.h"
#include "Base/Log.h"
#include "Base/PropertyList.h"
#include "Base/Seconds.h"
#include "Base/Sqlite.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <algorithm>
#include <chrono>

namespace fendrel {

using namespace Qt::StringLiterals;
using sqlite::Statement;

namespace {

constexpr auto longestKept = std::chrono::days(7);

/// Seconds since 2001-01-01 00:00 UTC.
double storedDate(WallTime time) {
    return Seconds(time - referenceDate).count();
}

QByteArray contentOf(const NotificationRecord& record) {
    QVariantMap content{
        {u"app"_s, record.application},
        {u"date"_s, storedDate(record.date)},
        {u"req"_s, QVariantMap{{u"titl"_s, record.title}, {u"subt"_s, QString()}, {u"body"_s, record.body}}}};
    if (record.isCritical)
        content.insert(u"crit"_s, true);
    return propertyList::write(content);
}

/// Runs a statement that has one result at most, and gives its first number; 0 without one.
template<class... Values>
std::optional<qint64> run(sqlite::Database& database, const QString& sql, const Values&... values) {
    auto prepared = database.prepare(sql);
    if (!prepared)
        return {};
    auto statement = *std::move(prepared);
    int parameter = 0;
    (statement.bind(++parameter, values), ...);
    const auto step = statement.step();
    if (step == Statement::Step::failed)
        return {};
    return step == Statement::Step::row ? statement.integer(0) : 0;
}

} // namespace

NotificationStore::NotificationStore(const QString& folder)
    : m_folder(folder), m_path(folder + u"/Notifications.db"_s) {}

NotificationStore::~NotificationStore() = default;

QString NotificationStore::open(WallTime now) {
    QDir().mkpath(m_folder);
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_ids.clear();
    for (const bool isSecondTry : {false, true}) {
        auto opened = sqlite::Database::open(m_path);
        if (!opened)
            return opened.error().text;
        m_database = *std::move(opened);
        if (arrange(now))
            break;
        const sqlite::Error error = m_database->lastError();
        m_database.reset();
        if (isSecondTry || !error.isDamage())
            return error.text;
        startAnew();
    }
    return {};
}

bool NotificationStore::arrange(WallTime now) {
    // In WAL mode readers never keep the writer waiting, and a commit does not wait for the disk.
    const bool isThere = m_database->run(uR"(
        PRAGMA journal_mode = WAL;
        PRAGMA synchronous = NORMAL;
        CREATE TABLE IF NOT EXISTS app (app_id INTEGER PRIMARY KEY, identifier TEXT UNIQUE);
        CREATE TABLE IF NOT EXISTS record (rec_id INTEGER PRIMARY KEY AUTOINCREMENT, app_id INTEGER, uuid BLOB,
            data BLOB, request_date REAL, delivered_date REAL);
        CREATE INDEX IF NOT EXISTS record_date ON record (delivered_date);
        DELETE FROM app WHERE app_id NOT IN (SELECT app_id FROM record);)"_s);
    // A log that is made anew does not begin with the numbers of the one before: messages of it may still be held.
    return isThere &&
           run(*m_database, uR"(
               INSERT INTO sqlite_sequence (name, seq) SELECT 'record', ?
                   WHERE NOT EXISTS (SELECT 1 FROM sqlite_sequence WHERE name = 'record'))"_s,
               qint64{now.time_since_epoch().count()}) &&
           prune(now);
}

QString NotificationStore::write(const QList<NotificationRecord>& records) {
    // Somebody may have emptied the folder; SQLite would go on writing into a file without a name.
    const WallTime now = records.last().date;
    if (!m_database || !QFile::exists(m_path)) {
        m_database.reset();
        if (const QString wrong = open(now); !wrong.isEmpty())
            return wrong;
    }
    auto error = put(records);
    if (error && error->isDamage()) {
        startAnew();
        if (const QString wrong = open(now); !wrong.isEmpty())
            return wrong;
        error = put(records);
    }
    return error ? error->text : QString();
}

std::optional<sqlite::Error> NotificationStore::put(const QList<NotificationRecord>& records) {
    sqlite::Transaction transaction(*m_database);
    if (!transaction.isOpen())
        return m_database->lastError();
    QHash<qint64, qint64> written;
    for (const NotificationRecord& record : records) {
        const auto id = put(record, written.value(record.number, m_ids.value(record.number)));
        if (!id)
            return m_database->lastError(); // the end of the transaction replaces it
        written.insert(record.number, *id);
    }
    if (!prune(records.last().date) || !transaction.commit())
        return m_database->lastError();
    m_ids.insert(written);
    forgetOldNumbers();
    return {};
}

/// Replaces the record with this id, or makes one. Returns its id.
std::optional<qint64> NotificationStore::put(const NotificationRecord& record, qint64 id) {
    sqlite::Database& database = *m_database;
    if (!run(database, u"INSERT OR IGNORE INTO app (identifier) VALUES (?)"_s, record.application))
        return {};
    const auto app = run(database, u"SELECT app_id FROM app WHERE identifier = ?"_s, record.application);
    if (!app)
        return {};
    const QByteArray uuid = QUuid::createUuid().toRfc4122();
    const QByteArray content = contentOf(record);
    const double date = storedDate(record.date);
    const auto replaced = run(database, uR"(
        UPDATE record SET app_id = ?, uuid = ?, data = ?, request_date = ?, delivered_date = ? WHERE rec_id = ?
        RETURNING rec_id)"_s,
                              *app, uuid, content, date, date, id);
    if (replaced != 0) // it failed, or it is done
        return replaced;
    return run(database, uR"(
        INSERT INTO record (app_id, uuid, data, request_date, delivered_date) VALUES (?, ?, ?, ?, ?)
        RETURNING rec_id)"_s,
               *app, uuid, content, date, date);
}

bool NotificationStore::prune(WallTime now) {
    return run(*m_database, u"DELETE FROM record WHERE delivered_date < ?"_s, storedDate(now - longestKept)) &&
           run(*m_database, uR"(
               DELETE FROM record WHERE (delivered_date, rec_id) < (SELECT delivered_date, rec_id FROM record
                   ORDER BY delivered_date DESC, rec_id DESC LIMIT 1 OFFSET ?))"_s,
               mostRecords - 1);
}

void NotificationStore::forgetOldNumbers() {
    if (m_ids.size() <= 2 * mostRecords)
        return;
    // They grow, so these are of records that are gone.
    const qint64 newest = std::ranges::max(m_ids.keys());
    m_ids.removeIf([newest](const auto& each) { return each.key() < newest - mostRecords; });
}

void NotificationStore::startAnew() {
    m_database.reset();
    JsonFile::keepAside(m_path);
    for (const QString& companion : {u"-wal"_s, u"-shm"_s})
        QFile::remove(m_path + companion);
}

} // namespace fendrel
