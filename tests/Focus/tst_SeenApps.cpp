#include "Focus/SeenApps.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QStringList stored(const FakeSettings& settings) {
    return settings.read<QHash<QString, double>>(u"seenApps"_s).value_or(QHash<QString, double>()).keys();
}

QString ids(const SeenApps& seen) {
    QStringList all;
    for (const SeenApp& app : seen.recent())
        all.append(app.bundleID);
    return all.join(u' ');
}

} // namespace

class SeenAppsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsTheLatestMomentOfADay() {
        FakeSettings settings;
        FakeClock clock;
        SeenApps seen(settings, clock);
        seen.cameToFront(u"a"_s);
        clock.advance(2h);
        seen.cameToFront(u"b"_s);
        clock.advance(1h);
        seen.cameToFront(u"a"_s);
        seen.cameToFront({});
        QCOMPARE(ids(seen), u"a b"_s);
        QCOMPARE(ids(SeenApps(settings, clock)), u"a b"_s); // after a restart

        clock.advance(23h); // nobody came to the front meanwhile
        QCOMPARE(ids(seen), u"a"_s);
        seen.cameToFront(u"c"_s);
        QVERIFY(!stored(settings).contains(u"b"_s));
    }

    void staysSmall() {
        FakeSettings settings;
        FakeClock clock;
        SeenApps seen(settings, clock);
        for (int number = 0; number < 300; ++number) {
            seen.cameToFront(QString::number(number));
            clock.advance(1s);
        }
        const auto apps = seen.recent();
        QCOMPARE(apps.size(), SeenApps::most);
        QCOMPARE(apps.first().bundleID, u"299"_s);
        QCOMPARE(stored(settings).size(), SeenApps::most);
    }

    void outlivesAClockThatIsSetBack() {
        FakeSettings settings;
        FakeClock clock;
        SeenApps seen(settings, clock);
        seen.cameToFront(u"ahead"_s);
        clock.setNow(clock.now() - 48h);
        QCOMPARE(ids(seen), QString());
        seen.cameToFront(u"now"_s);
        QCOMPARE(ids(seen), u"now"_s);
    }
};

QTEST_GUILESS_MAIN(SeenAppsTest)
#include "tst_SeenApps.moc"
