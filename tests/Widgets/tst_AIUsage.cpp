#include "Files.h"
#include "Widgets/Usage/AIUsage.h"
#include "Widgets/UsageLines.h"
#include "fakes/FakeClock.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class AIUsageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void looksAtOnceAndEveryMinuteWhileItShows() {
        QTemporaryDir folder;
        const QString log = folder.filePath(u"a.jsonl"_s);
        FakeClock clock;
        AIUsage usage(clock, {folder.path()});
        int told = 0;
        connect(&usage, &AIUsage::changed, this, [&] { ++told; });
        const auto tokens = [&] { return usage.summary() ? usage.summary()->tokensToday : -1; };
        clock.advance(5min);
        QVERIFY(!usage.isLoading());

        usage.setActive(true);
        QVERIFY(usage.isLoading());
        QTRY_COMPARE(told, 1);
        QVERIFY(!usage.summary()->hasLogs);

        putFile(log, usageLine("2026-01-05T09:00:00Z", "r", 1));
        clock.advance(60s);
        QTRY_COMPARE(tokens(), 1);
        QCOMPARE(told, 2);

        clock.advance(60s); // nothing new
        QTRY_VERIFY(!usage.isLoading());
        QCOMPARE(told, 2);
        QCOMPARE(usage.updatedAt(), clock.now());

        // A line that comes while one look is under way is found by the one that the user asks for.
        usage.refresh(false);
        putFile(log, usageLine("2026-01-05T09:00:00Z", "s", 20) + usageLine("2026-01-05T09:00:00Z", "t", 40));
        usage.refresh(true);
        QTRY_COMPARE(tokens(), 60);
        QTRY_VERIFY(!usage.isLoading());

        clock.sleep(20h); // another day
        QTRY_COMPARE(tokens(), 0);

        usage.setActive(false);
        QCOMPARE(clock.pending(), std::size_t(0));
    }

    /// Whoever runs this with a sanitizer learns whether an answer finds nobody.
    void endsWhileItReads() {
        QTemporaryDir folder;
        QFile log(folder.filePath(u"a.jsonl"_s));
        QVERIFY(log.open(QIODevice::WriteOnly) && log.resize(qint64(8) << 30)); // on no disk, but long to read
        FakeClock clock;
        auto usage = std::make_unique<AIUsage>(clock, QStringList{folder.path()});
        usage->setActive(true);
        usage.reset();
        QCoreApplication::processEvents();
        QCOMPARE(clock.pending(), std::size_t(0));
    }
};

QTEST_GUILESS_MAIN(AIUsageTest)
#include "tst_AIUsage.moc"
