#include "Base/Sqlite.h"

#include <QFile>

#include <sqlite3.h>

namespace fendrel::sqlite {

using namespace Qt::StringLiterals;

namespace {
constexpr int busyTimeout = 2000; // milliseconds
}

bool Error::isDamage() const {
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

void Statement::bind(int parameter, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    sqlite3_bind_text64(m_statement.get(), parameter, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                        SQLITE_TRANSIENT, SQLITE_UTF8);
}

void Statement::bind(int parameter, double number) {
    sqlite3_bind_double(m_statement.get(), parameter, number);
}

void Statement::bind(int parameter, qint64 number) {
    sqlite3_bind_int64(m_statement.get(), parameter, number);
}

void Statement::bind(int parameter, const QByteArray& bytes) {
    sqlite3_bind_blob64(m_statement.get(), parameter, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                        SQLITE_TRANSIENT);
}

Statement::Step Statement::step() {
    switch (sqlite3_step(m_statement.get())) {
    case SQLITE_ROW:
        return Step::row;
    case SQLITE_DONE:
        return Step::done;
    default:
        return Step::failed;
    }
}

void Statement::reset() {
    sqlite3_reset(m_statement.get());
    sqlite3_clear_bindings(m_statement.get());
}

QString Statement::text(int column) const {
    const void* bytes = sqlite3_column_text(m_statement.get(), column);
    return QString::fromUtf8(static_cast<const char*>(bytes), sqlite3_column_bytes(m_statement.get(), column));
}

double Statement::number(int column) const {
    return sqlite3_column_double(m_statement.get(), column);
}

qint64 Statement::integer(int column) const {
    return sqlite3_column_int64(m_statement.get(), column);
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

QByteArrayView Statement::bytes(int column) const {
    const void* bytes = sqlite3_column_blob(m_statement.get(), column);
    return {static_cast<const char*>(bytes), sqlite3_column_bytes(m_statement.get(), column)};
}

void Database::Close::operator()(sqlite3* database) const {
    sqlite3_close_v2(database);
}

Result<std::shared_ptr<Database>, Error> Database::open(const QString& path) {
    // SQLite would make the file readable by others, and its journals copy the file's permissions. A file that is there
    // is not opened for that: closing it would drop the locks that this process holds on it.
    if (QFile file(path); path != ":memory:"_L1) {
        constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner;
        file.open(QIODevice::WriteOnly | QIODevice::NewOnly, ownerOnly);
        file.setPermissions(ownerOnly);
    }
    return open(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX, busyTimeout);
}

Result<std::shared_ptr<Database>, Error> Database::openReadOnly(const QString& path, std::chrono::milliseconds wait) {
    return open(path, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, static_cast<int>(wait.count()));
}

Result<std::shared_ptr<Database>, Error> Database::open(const QString& path, int flags, int wait) {
    auto database = std::make_shared<Database>();
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(path.toUtf8().constData(), &handle, flags, nullptr);
    database->m_database.reset(handle); // SQLite gives a handle even for a failed opening
    if (code != SQLITE_OK)
        return Result<std::shared_ptr<Database>, Error>::failure(database->lastError());
    sqlite3_busy_timeout(handle, wait);
    return database;
}

Result<Statement, Error> Database::prepare(const QString& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_database.get(), sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
        return Result<Statement, Error>::failure(lastError());
    return Statement(statement);
}

bool Database::run(const QString& sql) {
    return sqlite3_exec(m_database.get(), sql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

Error Database::lastError() const {
    if (!m_database)
        return {.code = SQLITE_NOMEM, .text = u"out of memory"_s};
    return {.code = sqlite3_errcode(m_database.get()), .text = QString::fromUtf8(sqlite3_errmsg(m_database.get()))};
}

Transaction::Transaction(Database& database) : m_database(database), m_isOpen(database.run(u"BEGIN IMMEDIATE"_s)) {}

Transaction::~Transaction() {
    if (m_isOpen)
        m_database.run(u"ROLLBACK"_s);
}

bool Transaction::commit() {
    if (m_isOpen && m_database.run(u"COMMIT"_s)) {
        m_isOpen = false;
        return true;
    }
    return false;
}

} // namespace fendrel::sqlite
