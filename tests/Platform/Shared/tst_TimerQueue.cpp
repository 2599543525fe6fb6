#include "Platform/Shared/TimerQueue.h"
#include "Table.h"

#include <QtTest>

#include <vector>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

ContinuousTime at(std::chrono::milliseconds time) {
    return ContinuousTime(time);
}

} // namespace

class TimerQueueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void runsByTimeThenByCreation() {
        TimerQueue queue;
        const auto late = queue.once(at(30ms), note(u"late"_s));
        const auto first = queue.once(at(20ms), note(u"first"_s));
        const auto repeating = queue.repeating(at(0ms), 20ms, 0ms, note(u"repeating"_s));
        const auto second = queue.once(at(20ms), note(u"second"_s));
        const auto never = queue.once(at(31ms), note(u"never"_s));
        queue.fire(at(19ms));
        QCOMPARE(ran(), QStringList());
        queue.fire(at(30ms));
        QCOMPARE(ran(), (QStringList{u"first"_s, u"repeating"_s, u"second"_s, u"late"_s}));
        QCOMPARE(queue.size(), std::size_t(2));
    }

    void wakesUpForTheLatestMomentThatServesAll() {
        TimerQueue queue;
        QVERIFY(!queue.wakeUp());
        QList<std::optional<ContinuousTime>> told;
        queue.setOnChanged([&] { told.append(queue.wakeUp()); });
        const auto lenient = queue.repeating(at(0ms), 10ms, 100ms, note(u"lenient"_s));
        queue.once(at(50ms), note(u"dropped"_s)).reset();
        const auto strict = queue.once(at(60ms), note(u"strict"_s));
        QCOMPARE(told, (QList<std::optional<ContinuousTime>>{at(110ms), at(50ms), at(110ms), at(60ms)}));
        QCOMPARE(*queue.earliestDue(), at(10ms));
        queue.fire(at(60ms));
        QCOMPARE(ran(), (QStringList{u"lenient"_s, u"strict"_s}));
        QCOMPARE(*queue.wakeUp(), at(170ms));
    }

    void repeatsInPhaseWithoutMakingUp_data() {
        const Table<int, QList<int>, int, int> row("interval", "fired", "runs", "nextDue");
        row("late", 10, {13, 24}, 2, 30);
        row("early", 10, {9}, 0, 10);
        row("slept", 10, {10, 1005}, 2, 1010);
        row("slept to the dot", 10, {1000}, 1, 1010);
        row("no interval", 0, {1, 5}, 2, 6);
        row("negative interval", -5, {1}, 1, 2);
    }

    void repeatsInPhaseWithoutMakingUp() {
        QFETCH(int, interval);
        QFETCH(QList<int>, fired);
        QFETCH(int, nextDue);
        TimerQueue queue;
        const auto handle = queue.repeating(at(0ms), std::chrono::milliseconds(interval), 3ms, note(u"run"_s));
        for (const int time : fired)
            queue.fire(at(std::chrono::milliseconds(time)));
        QTEST(int(ran().size()), "runs");
        QCOMPARE(*queue.earliestDue(), at(std::chrono::milliseconds(nextDue)));
        QCOMPARE(*queue.wakeUp(), at(std::chrono::milliseconds(nextDue + 3)));
    }

    void callbackMayDropHandles() {
        TimerQueue queue;
        Handle own;
        Handle other;
        Handle repeating;
        own = queue.once(at(10ms), [&, kept = std::make_shared<int>(7)] {
            own.reset();
            other.reset();
            m_ran.append(QString::number(*kept)); // the callback itself must survive its handle
        });
        other = queue.once(at(10ms), note(u"other"_s));
        repeating = queue.repeating(at(0ms), 10ms, 0ms, [&, kept = std::make_shared<int>(8)] {
            repeating.reset();
            m_ran.append(QString::number(*kept));
        });
        queue.fire(at(10ms));
        queue.fire(at(50ms));
        QCOMPARE(ran(), (QStringList{u"7"_s, u"8"_s}));
        QCOMPARE(queue.size(), std::size_t(0));
    }

    void callbackMayDestroyEverything() {
        struct Owner {
            Handle first;
            Handle second;
            TimerQueue queue; // destroyed before the handles
        };
        auto owner = std::make_unique<Owner>();
        Handle outliving = owner->queue.once(at(10ms), note(u"outliving"_s));
        owner->first = owner->queue.once(at(5ms), [&] {
            owner.reset();
            note(u"destroyed"_s)();
            outliving.reset();
        });
        owner->second = owner->queue.once(at(5ms), note(u"second"_s));
        int changes = 0;
        owner->queue.setOnChanged([&] { ++changes; });
        owner->queue.fire(at(20ms));
        QCOMPARE(ran(), QStringList{u"destroyed"_s});
        QVERIFY2(changes == 0, "told an owner that is gone");
    }

    void nestedFireRunsEachOnce() {
        TimerQueue queue;
        const auto modal = queue.once(at(10ms), [&] {
            note(u"open"_s)();
            queue.fire(at(12ms));
            note(u"closed"_s)();
        });
        const auto repeating = queue.repeating(at(0ms), 10ms, 0ms, note(u"repeating"_s));
        const auto other = queue.once(at(11ms), note(u"other"_s));
        queue.fire(at(12ms));
        QCOMPARE(ran(), (QStringList{u"open"_s, u"repeating"_s, u"other"_s, u"closed"_s}));
    }

    void bearsDelaysWithoutEnd() {
        const auto endless = Clock::Duration::max();
        QCOMPARE(TimerQueue::later(at(10ms), endless), ContinuousTime::max());
        QCOMPARE(TimerQueue::later(at(10ms), -endless), at(10ms));
        TimerQueue queue;
        const auto repeating = queue.repeating(at(10ms), endless, endless, note(u"run"_s));
        QCOMPARE(*queue.wakeUp(), ContinuousTime::max());
        queue.fire(at(1000ms));
        QCOMPARE(ran(), QStringList());
    }

private:
    std::function<void()> note(const QString& what) {
        return [this, what] { m_ran.append(what); };
    }
    QStringList ran() { return std::exchange(m_ran, {}); }

    QStringList m_ran;
};

QTEST_APPLESS_MAIN(TimerQueueTest)
#include "tst_TimerQueue.moc"
