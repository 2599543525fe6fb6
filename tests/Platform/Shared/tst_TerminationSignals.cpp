#include "Platform/Shared/TerminationSignals.h"
#include "Table.h"

#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <cstdlib>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

/// The program that gets the signals: tells how its own children find theirs, then waits.
int runChild(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    TerminationSignals termination;
    termination.onTermination = [&] {
        std::puts("asked to end");
        raise(SIGTERM); // an impatient second one, on the way out
        QMetaObject::invokeMethod(
            &application, [] { QCoreApplication::exit(7); }, Qt::QueuedConnection);
    };
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (std::system("grep -E '^Sig(Blk|Ign):' /proc/self/status") != 0)
        return 1;
    std::puts("ready");
    return QCoreApplication::exec();
}

} // namespace

class TerminationSignalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void endsTheProgramInOrder_data() {
        const Table<int> row("signal");
        row("SIGTERM", SIGTERM);
        row("SIGINT", SIGINT);
        row("SIGHUP", SIGHUP);
    }

    void endsTheProgramInOrder() {
#if defined(__SANITIZE_THREAD__)
        QSKIP("the thread sanitizer holds signals back, at times for ever");
#endif
        QFETCH(int, signal);
        QProcess child;
        child.setChildProcessModifier([signal] { // a parent that blocks and ignores it
            std::signal(signal, SIG_IGN);
            sigset_t mask;
            sigemptyset(&mask);
            sigaddset(&mask, signal);
            sigprocmask(SIG_BLOCK, &mask, nullptr);
        });
        child.start(QCoreApplication::applicationFilePath(), {u"--child"_s});
        QByteArray said;
        while (!said.contains("ready\n")) {
            QVERIFY(child.waitForReadyRead());
            said += child.readAllStandardOutput();
        }
        // What it starts must not inherit a signal that is blocked (Blk) or ignored (Ign).
        const QRegularExpression masks(u"^Sig(?:Blk|Ign):\\s*([0-9a-f]+)$"_s, QRegularExpression::MultilineOption);
        int count = 0;
        for (auto match = masks.globalMatch(QString::fromLatin1(said)); match.hasNext(); ++count)
            QVERIFY2(((match.next().captured(1).toULongLong(nullptr, 16) >> (signal - 1)) & 1) == 0, said);
        QCOMPARE(count, 2);
        QCOMPARE(kill(pid_t(child.processId()), signal), 0);
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.readAllStandardOutput(), "asked to end\n");
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 7);
    }

    void putsBackWhatWasInForce() {
        std::signal(SIGHUP, SIG_IGN);
        { const TerminationSignals termination; }
        QVERIFY(std::signal(SIGHUP, SIG_DFL) == SIG_IGN);
    }
};

int main(int argc, char** argv) {
    if (argc > 1 && qstrcmp(argv[1], "--child") == 0)
        return runChild(argc, argv);
    QCoreApplication application(argc, argv);
    TerminationSignalsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_TerminationSignals.moc"
