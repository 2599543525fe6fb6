#include "Control/InstanceLock.h"
#include "Files.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

#include <cstdio>

using namespace fendrel::control;
using namespace Qt::StringLiterals;

class InstanceLockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oneAtATime() {
        const QTemporaryDir home;
        const QString folder = home.filePath(u"new/Fendrel"_s);
        auto first = std::make_unique<InstanceLock>(folder);
        QCOMPARE(first->state(), InstanceLock::State::held);
        QCOMPARE(fendrel::permissionsOf(folder), 0700U);
        for (int attempt = 0; attempt < 2; ++attempt) // asking does not free it
            QCOMPARE(InstanceLock(folder).state(), InstanceLock::State::heldByAnother);
        QCOMPARE(InstanceLock(u"/dev/null"_s).state(), InstanceLock::State::failed);
        QCOMPARE(InstanceLock(home.filePath(u"other"_s)).state(), InstanceLock::State::held);
        first.reset();
        QCOMPARE(InstanceLock(folder).state(), InstanceLock::State::held);
    }

    void isFreeWhenItsHolderIsKilled() {
        const QTemporaryDir home;
        QProcess holder;
        holder.start(QCoreApplication::applicationFilePath(), {u"--hold"_s, home.path()});
        QVERIFY(holder.waitForReadyRead(20'000)); // it says so when it has it
        QCOMPARE(InstanceLock(home.path()).state(), InstanceLock::State::heldByAnother);
        holder.kill();
        QVERIFY(holder.waitForFinished(20'000));
        QCOMPARE(InstanceLock(home.path()).state(), InstanceLock::State::held);
    }
};

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    if (argc == 3 && QByteArrayView(argv[1]) == "--hold") {
        const InstanceLock lock(QString::fromLocal8Bit(argv[2]));
        if (lock.state() == InstanceLock::State::held) {
            std::puts("held");
            std::fflush(stdout);
        }
        return std::getchar(); // until it is killed
    }
    InstanceLockTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_InstanceLock.moc"
