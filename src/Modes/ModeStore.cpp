#include "Modes/ModeStore.h"

#include "Base/JsonFile.h"
#include "Base/Log.h"
#include "Base/Sqlite.h"
#include "Base/Worker.h"
#include "Modes/StoredMode.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 schemaVersion = 1;
const QString inMemory = u":memory:"_s;

QString encodeList(const QStringList& list) {
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(list)).toJson(QJsonDocument::Compact));
}

QStringList decodeList(const QString& text) {
    QStringList list;
    for (const auto& item : QJsonDocument::fromJson(text.toUtf8()).array()) {
        if (item.isString())
            list.append(item.toString());
    }
    return list;
}

bool write(sqlite::Database& database, const QList<StoredMode>& modes) {
    sqlite::Transaction transaction(database);
    auto insert = database.prepare(uR"(
        INSERT INTO StoredMode (id, name, symbol, tint, apps, sites, widgets, "order", dailyBudget, entryDelay)
        VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)
        ON CONFLICT (id) DO UPDATE SET name = excluded.name, symbol = excluded.symbol, tint = excluded.tint,
            apps = excluded.apps, sites = excluded.sites, widgets = excluded.widgets, "order" = excluded."order",
            dailyBudget = excluded.dailyBudget, entryDelay = excluded.entryDelay)"_s);
    if (!insert)
        return false;
    auto statement = *std::move(insert);
    QStringList ids;
    for (const StoredMode& mode : modes) {
        statement.bind(1, mode.id);
        statement.bind(2, mode.name);
        statement.bind(3, mode.symbol);
        statement.bind(4, mode.tint);
        statement.bind(5, encodeList(mode.apps));
        statement.bind(6, encodeList(mode.sites));
        statement.bind(7, encodeList(mode.widgets));
        statement.bind(8, mode.order);
        statement.bind(9, mode.dailyBudget);
        statement.bind(10, mode.entryDelay);
        if (statement.step() != sqlite::Statement::Step::done)
            return false;
        statement.reset();
        ids.append(mode.id);
    }
    auto removal = database.prepare(u"DELETE FROM StoredMode WHERE id NOT IN (SELECT value FROM json_each(?))"_s);
    if (!removal)
        return false;
    auto remove = *std::move(removal);
    remove.bind(1, encodeList(ids));
    return remove.step() == sqlite::Statement::Step::done && transaction.commit();
}

} // namespace

ModeStore::ModeStore(const std::optional<QString>& folder, Worker& disk, std::function<bool(const QString&)> isWidget)
    : m_path(folder ? *folder + u"/Modes.store"_s : inMemory), m_disk(disk), m_isWidget(std::move(isWidget)) {
    if (folder) {
        QDir().mkpath(*folder);
        QFile::setPermissions(*folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    open();
}

void ModeStore::open() {
    auto opened = sqlite::Database::open(m_path);
    if (!opened) {
        qCWarning(logModes).noquote() << "Couldn't open the modes:" << opened.error().text;
        m_problem = u"Your modes could not be opened (%1). What you change now is not kept."_s.arg(opened.error().text);
        return;
    }
    m_database = *std::move(opened);
}

QList<Mode> ModeStore::load() {
    m_disk.flush();
    if (!m_database)
        return {};
    const auto modes = read();
    if (modes)
        return *modes;
    const sqlite::Error& error = modes.error();
    qCWarning(logModes).noquote() << "Couldn't read the modes:" << error.text;
    m_database.reset();
    if (!error.isDamage()) {
        if (!m_problem)
            m_problem = u"Your modes could not be read (%1). What you change now is not kept."_s.arg(error.text);
        return {};
    }
    const auto aside = JsonFile::keepAside(m_path);
    QFile::remove(m_path + u"-journal"_s);
    if (!aside) {
        m_problem = u"Your modes could not be read. What you change now is not kept."_s;
        return {};
    }
    m_problem = u"Your modes could not be read. The file is kept as %1, and you start with fresh modes."_s.arg(*aside);
    open();
    if (m_database && !read())
        m_database.reset();
    return {};
}

Result<QList<Mode>, sqlite::Error> ModeStore::read() {
    using Answer = Result<QList<Mode>, sqlite::Error>;
    // Asked where it went wrong: a statement that is cleaned up afterwards replaces the database's last error.
    const auto failure = [this] { return Answer::failure(m_database->lastError()); };
    auto version = m_database->prepare(u"PRAGMA user_version"_s);
    if (!version)
        return Answer::failure(version.error());
    auto versionRow = *std::move(version);
    if (versionRow.step() != sqlite::Statement::Step::row)
        return failure();
    const qint64 storedVersion = versionRow.integer(0);
    if (storedVersion > schemaVersion) {
        m_problem = u"Your modes were written by a newer Fendrel. What you change now is not kept."_s;
        return Answer::failure({.text = u"schema version %1"_s.arg(storedVersion)});
    }
    versionRow.reset();
    if (storedVersion < schemaVersion && !m_database->run(uR"(
            CREATE TABLE IF NOT EXISTS StoredMode (id TEXT PRIMARY KEY, name TEXT, symbol TEXT, tint TEXT, apps TEXT,
                sites TEXT, widgets TEXT, "order" INTEGER, dailyBudget REAL, entryDelay REAL);
            PRAGMA user_version = 1;)"_s))
        return failure();
    auto select = m_database->prepare(uR"(
        SELECT id, name, symbol, tint, apps, sites, widgets, "order", dailyBudget, entryDelay
        FROM StoredMode ORDER BY "order")"_s);
    if (!select)
        return Answer::failure(select.error());
    auto rows = *std::move(select);
    QList<Mode> modes;
    for (;;) {
        const auto step = rows.step();
        if (step == sqlite::Statement::Step::failed)
            return failure();
        if (step == sqlite::Statement::Step::done)
            return modes;
        QStringList widgets = decodeList(rows.text(6));
        widgets.removeIf([this](const QString& widget) { return !m_isWidget(widget); });
        modes.append(StoredMode{.id = rows.text(0),
                                .name = rows.text(1),
                                .symbol = rows.text(2),
                                .tint = rows.text(3),
                                .apps = decodeList(rows.text(4)),
                                .sites = decodeList(rows.text(5)),
                                .widgets = widgets,
                                .order = rows.integer(7),
                                .dailyBudget = rows.number(8),
                                .entryDelay = rows.number(9)}
                         .toMode());
    }
}

void ModeStore::save(const QList<Mode>& modes) {
    if (!m_database)
        return;
    QList<StoredMode> stored;
    for (const Mode& mode : modes)
        stored.append(StoredMode::from(mode, stored.size()));
    m_disk.post(m_path, [database = m_database, stored] {
        if (!write(*database, stored))
            qCWarning(logModes).noquote() << "Couldn't save the modes:" << database->lastError().text;
    });
}

} // namespace fendrel
