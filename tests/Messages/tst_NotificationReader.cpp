#include "Messages/NotificationReader.h"
#include "fakes/FakeNotificationLog.h"

#include <QTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class TestNotificationReader : public QObject {
    Q_OBJECT

    static QList<qint64> ids(NotificationReader& reader) {
        QList<qint64> list;
        for (const NotificationRow& row : reader.read().value_or(QList<NotificationRow>{{.id = -1}}))
            list.append(row.id);
        return list;
    }

private Q_SLOTS:
    void tellsWhatIsNew() {
        FakeNotificationLog log;
        for (int count = 0; count < 50; ++count)
            log.add({.app = u"a"_s, .title = u"old"_s});
        NotificationReader reader(log.databasePath());
        QCOMPARE(ids(reader), {});
        const auto later = log.add({.app = u"a"_s, .title = u"later"_s, .date = 300});
        const auto sooner = log.add({.app = u"b"_s, .title = u"sooner"_s, .date = 200});
        const auto rows = reader.read();
        QCOMPARE(rows->size(), 2);
        QCOMPARE(rows->at(0).id, sooner);
        QCOMPARE(rows->at(0).app, u"b"_s);
        QCOMPARE(rows->at(0).date, 200.0);
        QCOMPARE(rows->at(1).id, later);
        QCOMPARE(ids(reader), {});

        log.run(u"DELETE FROM record WHERE rec_id <= 49"_s); // a gap, wider than is looked through for the next key
        const auto afterGap = log.add({.app = u"a"_s, .title = u"after"_s});
        QCOMPARE(ids(reader), {afterGap});
        log.add({.app = u"a"_s, .title = u"replaced"_s, .replaces = later});
        QCOMPARE(ids(reader), {later});
        log.run(u"DELETE FROM record"_s);
        QCOMPARE(ids(reader), {});
    }

    void keysOfEveryKind() {
        FakeNotificationLog log;
        NotificationReader reader(log.databasePath());
        QCOMPARE(ids(reader), {});
        log.run(u"INSERT INTO app VALUES (1, 'a'), (2, NULL)"_s);
        log.run(u"INSERT INTO record VALUES (10, 1, NULL, x'00', 5, NULL), (11, 1, zeroblob(100), x'00', 6, NULL), "
                "(12, 1, zeroblob(101), x'00', NULL, NULL)"_s);
        QCOMPARE(ids(reader), QList<qint64>({12, 10, 11}));
        log.run(u"INSERT INTO record VALUES (13, 1, x'01', NULL, 0, 0), (14, 2, x'02', x'00', 0, 0), "
                "(15, 99, x'03', x'00', 0, 0)"_s); // without data, application, or either
        QCOMPARE(ids(reader), {});
    }

    void fileThatComesAndGoes() {
        FakeNotificationLog log;
        log.removeFile();
        NotificationReader reader(log.databasePath());
        QVERIFY(!reader.read());
        log.replaceFile();
        log.add({.app = u"a"_s, .title = u"there before the first read"_s});
        QCOMPARE(ids(reader), {});
        log.replaceFile();
        const auto id = log.add({.app = u"a"_s, .title = u"in another file"_s});
        QCOMPARE(ids(reader), {id});

        log.run(u"DROP TABLE record"_s);
        QVERIFY(!reader.read());
        log.replaceFile();
        QCOMPARE(ids(reader), {});
    }
};

QTEST_APPLESS_MAIN(TestNotificationReader)
#include "tst_NotificationReader.moc"
