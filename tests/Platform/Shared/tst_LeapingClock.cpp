#include "Platform/Shared/LeapingClock.h"
#include "fakes/FakeClock.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class LeapingClockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void runsWhatFallsDueOnTheWay() {
        auto owned = std::make_unique<FakeClock>();
        FakeClock& under = *owned;
        LeapingClock clock(std::move(owned));
        QStringList ran;
        const Handle late = clock.after(3min, [&] { ran.append(u"late"_s); });
        const Handle soon = clock.after(1min, [&] { ran.append(u"soon"_s); });
        const Handle each = clock.every(30s, 1s, [&] { ran.append(u"each"_s); });
        const WallTime wall = clock.now();
        const ContinuousTime start = clock.continuousNow();

        under.advance(10s); // time passes as it did before
        clock.leap(2min);
        QCOMPARE(ran, (QStringList{u"each"_s, u"soon"_s}));
        QCOMPARE(clock.now() - wall, 130s);
        QCOMPARE(clock.continuousNow() - start, 130s);
        under.advance(50s - 1ms);
        QCOMPARE(ran, (QStringList{u"each"_s, u"soon"_s, u"each"_s})); // in step with before
        under.advance(1ms);
        QCOMPARE(ran.count(u"late"_s), 1);
    }
};

QTEST_GUILESS_MAIN(LeapingClockTest)
#include "tst_LeapingClock.moc"
