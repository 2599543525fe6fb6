#include "Base/PropertyList.h"
#include "Base/Sqlite.h"
#include "Files.h"
#include "Platform/Linux/Notifications/NotificationStore.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Row {
    qint64 id{};
    QString application{};
    QByteArray uuid{};
    QVariantMap content{};
    double date{};
};

struct Home {
    QTemporaryDir directory;
    QString folder = directory.filePath(u"data/Fendrel"_s);
    NotificationStore store{folder};

    QList<Row> rows() const {
        const auto database = *sqlite::Database::openReadOnly(store.path(), 1s);
        auto rows = *database->prepare(u"SELECT rec_id, identifier, uuid, data, delivered_date FROM record "
                                       "JOIN app USING (app_id) ORDER BY rec_id"_s);
        QList<Row> found;
        while (rows.step() == sqlite::Statement::Step::row)
            found.append({.id = rows.integer(0),
                          .application = rows.text(1),
                          .uuid = rows.bytes(2).toByteArray(),
                          .content = propertyList::read(rows.bytes(3)).value_or(QVariant()).toMap(),
                          .date = rows.number(4)});
        return found;
    }
};

constexpr WallTime today = std::chrono::sys_days(std::chrono::year(2001) / 1 / 11);

NotificationRecord record(qint64 number, WallTime date = today) {
    return {.number = number, .application = u"app"_s, .title = QString::number(number), .date = date};
}

} // namespace

class NotificationStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void replacesByNumber() {
        Home home;
        QCOMPARE(home.store.open(today), QString());
        QCOMPARE(home.store.write({record(1), record(2)}), QString());
        const auto before = home.rows();
        QCOMPARE(home.store.write({{.number = 1,
                                    .application = u"other"_s,
                                    .isCritical = true,
                                    .title = u"new"_s,
                                    .body = u"text"_s,
                                    .date = today + 1500ms}}),
                 QString());
        const auto after = home.rows();
        QCOMPARE(after.size(), 2);
        QCOMPARE(after[0].id, before[0].id);
        QVERIFY(after[0].uuid.size() == 16 && after[0].uuid != before[0].uuid);
        QCOMPARE(after[0].application, u"other"_s);
        QCOMPARE(after[0].date, 864001.5);
        const QVariantMap request{{u"titl"_s, u"new"_s}, {u"subt"_s, u""_s}, {u"body"_s, u"text"_s}};
        QCOMPARE(after[0].content,
                 (QVariantMap{{u"app"_s, u"other"_s}, {u"date"_s, 864001.5}, {u"crit"_s, true}, {u"req"_s, request}}));
        QVERIFY(!after[1].content.contains(u"crit"_s));

        NotificationStore later(home.folder); // its numbers begin anew, and mean other notifications
        QCOMPARE(later.write({record(1)}), QString());
        QCOMPARE(home.rows().size(), 3);
    }

    void keepsTheNewest() {
        Home home;
        QList<NotificationRecord> records{record(1, today - std::chrono::days(7) - 1s)};
        for (qint64 number = 2; number <= 2010; ++number)
            records.append(record(number));
        QCOMPARE(home.store.write(records), QString());
        QCOMPARE(home.rows().first().content[u"req"_s].toMap()[u"titl"_s], u"11"_s);
        QCOMPARE(home.store.write({record(11), record(5)}), QString()); // replaced, and come back
        QCOMPARE(home.rows().size(), 2000);
        QCOMPARE(home.rows().last().content[u"req"_s].toMap()[u"titl"_s], u"5"_s);
    }

    void lockedReplacedAndOld() {
        Home home;
        QCOMPARE(home.store.write({record(1)}), QString());
        const qint64 first = home.rows().last().id;
        const auto other = *sqlite::Database::open(home.store.path());
        QVERIFY(other->run(u"BEGIN IMMEDIATE"_s));
        QVERIFY(home.store.write({record(2), record(3)}).contains(u"locked"_s));
        QVERIFY(other->run(u"ROLLBACK"_s));
        QCOMPARE(home.rows().size(), 1);
        QVERIFY(QFile::remove(home.store.path())); // numbers of another file
        QCOMPARE(home.store.write({record(2, today + 1s)}), QString());
        QVERIFY(home.rows().last().id > first);

        NotificationStore later(home.folder);
        QCOMPARE(later.open(today + std::chrono::days(8)), QString());
        QVERIFY(home.rows().isEmpty());
    }

    void keepsADamagedFileAside() {
        for (const qsizetype intactPages : {0, 1, 5}) { // the last of the six belongs to the index
            Home home;
            QCOMPARE(NotificationStore(home.folder).write({record(1)}), QString());
            const QByteArray damaged =
                contentOf(home.store.path()).first(4096 * intactPages) + QByteArray(4096 * (6 - intactPages), 'x');
            putFile(home.store.path(), damaged);
            QCOMPARE(home.store.write({record(2)}), QString());
            QCOMPARE(home.rows().size(), 1);
            QCOMPARE(contentOf(home.store.path() + u".damaged-1"_s), damaged);
        }
    }

    void beginsAgainWhereItWasRemoved() {
        Home home;
        QCOMPARE(home.store.write({record(1)}), QString());
        QVERIFY(QDir(home.folder).removeRecursively());
        QCOMPARE(home.store.write({record(2)}), QString());
        QCOMPARE(home.rows().size(), 1);
        for (const QString& companion : {u""_s, u"-wal"_s, u"-shm"_s})
            QCOMPARE(permissionsOf(home.store.path() + companion), 0600U);
        QCOMPARE(permissionsOf(home.folder), 0700U);
    }
};

QTEST_APPLESS_MAIN(NotificationStoreTest)
#include "tst_NotificationStore.moc"
