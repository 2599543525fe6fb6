#pragma once

#include "Base/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <chrono>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

/// A thin owner around SQLite's C interface (sqlite.org/c3ref). One thread at a time per database.
namespace fendrel::sqlite {

struct Error {
    int code{}; ///< SQLite's primary result code
    QString text{};
    bool isDamage() const; ///< the file is no database, or a broken one
};

/// One prepared statement. Parameters count from 1, columns from 0, as in SQLite.
class Statement {
public:
    enum class Step { row, done, failed };

    void bind(int parameter, const QString& text);
    void bind(int parameter, double number);
    void bind(int parameter, qint64 number);
    void bind(int parameter, const QByteArray& bytes);
    Step step();
    void reset(); ///< ready for new parameters and another run

    QString text(int column) const;
    double number(int column) const;
    qint64 integer(int column) const;
    bool isNull(int column) const;
    QByteArrayView bytes(int column) const; ///< valid until the next step

private:
    friend class Database;
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    explicit Statement(sqlite3_stmt* statement) : m_statement(statement) {}
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

class Database {
public:
    /// Opens or makes the file, readable by its owner only; ":memory:" keeps everything in memory.
    static Result<std::shared_ptr<Database>, Error> open(const QString& path);
    /// Opens a database that others write, for reading alone. Statements fail when they had to wait longer.
    static Result<std::shared_ptr<Database>, Error> openReadOnly(const QString& path, std::chrono::milliseconds wait);

    Result<Statement, Error> prepare(const QString& sql);
    bool run(const QString& sql); ///< for statements without parameters or results
    Error lastError() const;

private:
    static Result<std::shared_ptr<Database>, Error> open(const QString& path, int flags, int wait);
    struct Close {
        void operator()(sqlite3* database) const;
    };
    std::unique_ptr<sqlite3, Close> m_database;
};

/// Rolls back unless it was committed.
class Transaction {
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    bool isOpen() const { return m_isOpen; } ///< false when it could not begin
    bool commit();

private:
    Database& m_database;
    bool m_isOpen;
};

} // namespace fendrel::sqlite
