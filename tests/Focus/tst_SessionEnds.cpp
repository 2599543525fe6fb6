#include "Focus/SessionEnds.h"
#include "Table.h"

#include <QTimeZone>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class SessionEndsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void areFullAndHalfHours_data() {
        const Table<QString, QString> row("now", "ends");
        row("between", u"2025-03-05 14:12:31"_s, u"14:30 15:00 15:30 16:00 16:30 17:00"_s);
        row("one is near", u"2025-03-05 14:20:00"_s, u"15:00 15:30 16:00 16:30 17:00 17:30"_s);
        row("near enough", u"2025-03-05 14:19:59"_s, u"14:30 15:00 15:30 16:00 16:30 17:00"_s);
        row("midnight", u"2025-03-05 22:45:00"_s, u"23:00 23:30 00:00 00:30 01:00 01:30"_s);
        row("an hour is left out", u"2025-03-30 01:05:00"_s, u"01:30 03:00 03:30 04:00 04:30 05:00"_s);
    }
    void areFullAndHalfHours() {
        QFETCH(QString, now);
        const QDateTime moment = QDateTime::fromString(now, u"yyyy-MM-dd HH:mm:ss"_s);
        QStringList ends;
        for (const QDateTime& end : sessionEnds(moment))
            ends.append(end.toString(u"HH:mm"_s));
        QTEST(ends.join(u' '), "ends");
    }

    // Whoever waits for the moment finds others then, and not before.
    void changeWhenTheySay() {
        const QDateTime now(QDate(2025, 3, 5), QTime(14, 12, 31));
        const QDateTime change = sessionEndsChangeAt(now);
        QCOMPARE(sessionEnds(change.addMSecs(-1)), sessionEnds(now));
        QVERIFY(sessionEnds(change).first() > sessionEnds(now).first());
    }
};

QTEST_GUILESS_MAIN(SessionEndsTest)
#include "tst_SessionEnds.moc"
