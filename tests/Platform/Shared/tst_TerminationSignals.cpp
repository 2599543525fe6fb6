#include "Platform/Shared/TerminationSignals.h"

#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <cstdlib>

using fendrel::TerminationSignals;
using namespace Qt::StringLiterals;

class TerminationSignalsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void endsTheProgramInOrder_data();
    void endsTheProgramInOrder();
    void putsBackWhatWasInForce();
};

namespace {

void say(const char* line) {
    std::puts(line);
    std::fflush(stdout);
}

/// The program that gets the signals: tells how its own children find theirs, then waits.
int runChild(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    TerminationSignals termination;
    termination.onTermination = [&] {
        say("asked to end");
        raise(SIGTERM); // an impatient second one, on the way out
        QMetaObject::invokeMethod(
            &application, [] { QCoreApplication::exit(7); }, Qt::QueuedConnection);
    };
    if (std::system("grep -E '^Sig(Blk|Ign):' /proc/self/status") != 0)
        return 1;
    say("ready");
    return QCoreApplication::exec();
}

} // namespace

void TerminationSignalsTest::endsTheProgramInOrder_data() {
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("isBlocked");
    QTest::newRow("SIGTERM") << SIGTERM << false;
    QTest::newRow("SIGINT") << SIGINT << false;
    QTest::newRow("SIGHUP") << SIGHUP << false;
    QTest::newRow("SIGTERM, blocked and ignored by the parent") << SIGTERM << true;
    QTest::newRow("SIGINT, blocked and ignored by the parent") << SIGINT << true;
}

void TerminationSignalsTest::endsTheProgramInOrder() {
#if defined(__SANITIZE_THREAD__)
    QSKIP("the thread sanitizer holds signals back, at times for ever");
#endif
    QFETCH(int, signal);
    QFETCH(bool, isBlocked);
    QProcess child;
    child.setChildProcessModifier([signal, isBlocked] {
        if (!isBlocked)
            return;
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
    const quint64 ours = quint64(1) << (signal - 1);
    int lines = 0;
    for (const auto& line : said.split('\n')) {
        if (!line.startsWith("Sig"))
            continue;
        ++lines;
        QVERIFY2((line.mid(7).trimmed().toULongLong(nullptr, 16) & ours) == 0, line.constData());
    }
    QCOMPARE(lines, 2);
    QCOMPARE(kill(pid_t(child.processId()), signal), 0);
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.readAllStandardOutput(), "asked to end\n");
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 7);
}

void TerminationSignalsTest::putsBackWhatWasInForce() {
    std::signal(SIGHUP, SIG_IGN);
    { const TerminationSignals termination; }
    QVERIFY(std::signal(SIGHUP, SIG_DFL) == SIG_IGN);
}

int main(int argc, char** argv) {
    if (argc > 1 && qstrcmp(argv[1], "--child") == 0)
        return runChild(argc, argv);
    QCoreApplication application(argc, argv);
    TerminationSignalsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_TerminationSignals.moc"
