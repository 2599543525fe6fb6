#include "Messages/NotificationReader.h"

#include <QFile>
#include <QStringList>

#include <sys/stat.h>

#include <chrono>

namespace fendrel {

using namespace Qt::StringLiterals;
using sqlite::Statement;

namespace {
constexpr std::chrono::milliseconds busyWait{200};
}

std::optional<NotificationReader::File> NotificationReader::file() const {
    struct stat facts {};
    if (::stat(QFile::encodeName(m_path).constData(), &facts) != 0)
        return {};
    return File{.device = static_cast<quint64>(facts.st_dev), .inode = static_cast<quint64>(facts.st_ino)};
}

std::optional<NotificationReader::Connection> NotificationReader::connect(const QString& path, const File& file) {
    auto database = sqlite::Database::openReadOnly(path, busyWait);
    if (!database)
        return {};
    auto version = (*database)->prepare(u"PRAGMA data_version"_s);
    if (!version)
        return {};
    return Connection{.database = *database, .version = *std::move(version), .file = file};
}

std::optional<QList<NotificationRow>> NotificationReader::read() {
    const auto now = file();
    if (!now || (m_connection && m_connection->file != *now)) {
        m_connection.reset();
        m_version.reset();
    }
    if (!now)
        return {};
    if (!m_connection)
        m_connection = connect(m_path, *now);
    if (!m_connection)
        return {};
    // Asked before the records are read: what is written meanwhile is read once more.
    m_connection->version.reset();
    const bool isKnown = m_connection->version.step() == Statement::Step::row;
    const qint64 version = isKnown ? m_connection->version.integer(0) : 0;
    m_connection->version.reset();
    if (isKnown && m_version == version)
        return QList<NotificationRow>();
    auto rows = isKnown ? readAll() : std::nullopt;
    if (rows) {
        m_version = version;
    } else {
        m_connection.reset();
        m_version.reset();
    }
    return rows;
}

std::optional<QList<NotificationRow>> NotificationReader::readAll() {
    auto prepared = m_connection->database->prepare(u"SELECT rec_id, uuid FROM record"_s);
    if (!prepared)
        return {};
    Statement statement = *std::move(prepared);
    NotificationKeys keys;
    if (m_seen)
        keys.reserve(m_seen->size() + 64);
    const NotificationKeys none;
    NotificationKeys::Comparison before(m_seen ? *m_seen : none);
    QList<qint64> added;
    Statement::Step step{};
    while ((step = statement.step()) == Statement::Step::row) {
        const QByteArrayView uuid = statement.bytes(1);
        const bool isMissing = uuid.isEmpty() && statement.isNull(1);
        const NotificationKey key = isMissing ? NotificationKey::ofRecord(statement.integer(0)) : NotificationKey(uuid);
        if (m_seen && !before.contains(key))
            added.append(statement.integer(0));
        keys.append(key);
    }
    if (step != Statement::Step::done)
        return {};
    auto found = added.isEmpty() ? QList<NotificationRow>() : rows(added);
    if (found)
        m_seen = std::move(keys);
    return found;
}

std::optional<QList<NotificationRow>> NotificationReader::rows(const QList<qint64>& ids) {
    QStringList numbers;
    for (const qint64 id : ids)
        numbers.append(QString::number(id));
    auto prepared = m_connection->database->prepare(
        u"SELECT r.rec_id, a.identifier, r.data, coalesce(r.delivered_date, r.request_date, 0) AS d\n"
        "FROM record r JOIN app a ON a.app_id = r.app_id WHERE r.rec_id IN ("_s +
        numbers.join(u',') + u") ORDER BY d"_s);
    if (!prepared)
        return {};
    Statement statement = *std::move(prepared);
    QList<NotificationRow> rows;
    Statement::Step step{};
    while ((step = statement.step()) == Statement::Step::row) {
        if (statement.isNull(1) || statement.isNull(2))
            continue;
        rows.append({.id = statement.integer(0),
                     .app = statement.text(1),
                     .data = statement.bytes(2).toByteArray(),
                     .date = statement.number(3)});
    }
    if (step != Statement::Step::done)
        return {};
    return rows;
}

} // namespace fendrel
