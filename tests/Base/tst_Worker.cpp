#include "Base/Worker.h"

#include <QSemaphore>
#include <QtTest>

using fendrel::Worker;
using namespace Qt::StringLiterals;

namespace {

/// Occupies the worker until the returned semaphore is released; it has started when this returns.
std::shared_ptr<QSemaphore> occupy(
    Worker& worker, const QString& key, std::function<void()> then = [] {}) {
    auto go = std::make_shared<QSemaphore>();
    const auto started = std::make_shared<QSemaphore>();
    worker.post(key, [go, started, then = std::move(then)] {
        started->release();
        go->acquire();
        then();
    });
    started->acquire();
    return go;
}

} // namespace

class WorkerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void runsInOrderWithTheNewestOfEachKeyInItsPlace() {
        QStringList ran; // plain: flush is what makes it safe to read
        Worker worker(u"test"_s);
        const auto go = occupy(worker, u"a"_s, [&ran] { ran.append(u"under way"_s); });
        const auto post = [&](const QString& key, const QString& what) {
            worker.post(key, [&ran, what] { ran.append(what); });
        };
        post(u"a"_s, u"a1"_s);
        post({}, u"x"_s);
        post(u"b"_s, u"b1"_s);
        post(u"a"_s, u"a2"_s);
        post({}, u"y"_s);
        post(u"a"_s, u"a3"_s);
        go->release();
        worker.flush();
        QCOMPARE(ran, (QStringList{u"under way"_s, u"a3"_s, u"x"_s, u"b1"_s, u"y"_s}));
    }

    void flushWaitsForTheRunningJob() {
        Worker worker(u"test"_s);
        Worker helper(u"helper"_s);
        worker.flush(); // nothing to wait for
        bool isDone = false;
        const auto go = occupy(worker, {}, [&isDone] { isDone = true; }); // the queue is empty again
        helper.post({}, [go] { go->release(); });
        worker.flush();
        QVERIFY(isDone);
    }

    void endsOnlyWhenTheQueueHasRun() {
        int ran = 0;
        {
            Worker worker(u"test"_s);
            const auto go = occupy(worker, {});
            for (int index = 0; index < 100; ++index)
                worker.post({}, [&ran] { ++ran; });
            go->release();
        }
        QCOMPARE(ran, 100);
    }
};

QTEST_APPLESS_MAIN(WorkerTest)
#include "tst_Worker.moc"
