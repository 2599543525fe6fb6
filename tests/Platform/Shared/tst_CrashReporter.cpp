#include "Files.h"
#include "Platform/Shared/CrashReporter.h"

#include <QProcess>
#include <QtTest>

#include <dlfcn.h>
#include <sys/resource.h>

#include <thread>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

volatile int sink = 0;

// Each is the function that its report must name, in its own words or by its place in the program.
[[gnu::noinline]] void readNothing() {
    volatile int* volatile nothing = nullptr;
    nothing[4] = 1;
}
[[gnu::noinline]] void callAbort() {
    std::abort();
}
[[gnu::noinline]] int overflowStack(int depth) {
    volatile char room[4096];
    room[0] = char(depth);
    return depth < 0 ? 0 : overflowStack(depth + 1) + room[0];
}
[[gnu::noinline]] void overflowStackFully() {
    sink = overflowStack(1);
}
[[gnu::noinline]] void crashOnThread() {
    std::thread(readNothing).join();
}
[[gnu::noinline]] void getKilled() {
    sink = kill(getpid(), SIGSEGV); // not the last thing it does, or it would not be on the stack
}

struct Crash {
    const char* name{};
    void (*run)(){};
    int signal{};
    const char* reason{};  ///< how the report's line on the signal goes on
    const void* culprit{}; ///< where the stack must show it, if not in `run`
};

const Crash crashes[]{
    {"null pointer", readNothing, SIGSEGV, "SIGSEGV (11) at address 0x10"},
    {"abort", callAbort, SIGABRT, "SIGABRT (6)"},
    {"stack overflow", overflowStackFully, SIGSEGV, "SIGSEGV (11) at address 0x",
     reinterpret_cast<void*>(overflowStack)},
    {"thread", crashOnThread, SIGSEGV, "SIGSEGV (11) at address 0x10", reinterpret_cast<void*>(readNothing)},
    {"killed", getKilled, SIGSEGV, "SIGSEGV (11)"},
};

int runChild(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    const CrashReporter reporter(QString::fromLocal8Bit(argv[2]));
    crashes[QByteArray(argv[3]).toInt()].run();
    return 0;
}

quint64 offsetOf(const void* address) {
    Dl_info module{};
    dladdr(address, &module);
    return reinterpret_cast<quintptr>(address) - reinterpret_cast<quintptr>(module.dli_fbase);
}

} // namespace

class CrashReporterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reportsThenCrashes_data() {
        QTest::addColumn<int>("index");
        for (int index = 0; index < int(std::size(crashes)); ++index)
            QTest::newRow(crashes[index].name) << index;
    }

    void reportsThenCrashes() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        QSKIP("the sanitizer reports crashes itself");
#endif
        QFETCH(int, index);
        const auto& crash = crashes[index];
        const QTemporaryDir folder;
        const QString reports = folder.filePath(u"crashes"_s);
        QProcess child;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"FENDREL_TEST_KEY"_s, u"secret-in-environment"_s);
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(),
                    {u"--child"_s, reports, QString::number(index), u"secret-in-argument"_s});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);
        QCOMPARE(child.exitCode(), crash.signal);

        const auto names = QDir(reports).entryList(QDir::Files);
        QCOMPARE(names.size(), 1);
        const QString path = reports + u'/' + names.first();
        QVERIFY2(QDir::match(u"Fendrel-20*-*-*-*-*.ips"_s, names.first()), qPrintable(names.first()));
        QCOMPARE(permissionsOf(path), 0600U);
        QCOMPARE(permissionsOf(reports), 0700U);

        const QString report = QString::fromUtf8(contentOf(path));
        QVERIFY2(report.startsWith(u"Fendrel " FENDREL_VERSION "\nSystem: "_s + QSysInfo::prettyProductName()),
                 qPrintable(report));
        QVERIFY2(report.contains(u"\nSignal: "_s + QLatin1StringView(crash.reason)), qPrintable(report));
        QVERIFY(!report.contains(u"secret"_s));
        QVERIFY(!report.contains(QCoreApplication::applicationDirPath()));

        const quint64 culprit = offsetOf(crash.culprit ? crash.culprit : reinterpret_cast<void*>(crash.run));
        const QRegularExpression frame(u" tst_CrashReporter\\+0x([0-9a-f]+)"_s);
        bool isNamed = false;
        for (auto match = frame.globalMatch(report); match.hasNext() && !isNamed;)
            isNamed = match.next().captured(1).toULongLong(nullptr, 16) - culprit < 128;
        QVERIFY2(isNamed, qPrintable(report));
    }

    void keepsTheNewestReports() {
        const QTemporaryDir folder;
        const auto put = [&](const QString& name, int day) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly) &&
                    file.setFileTime(QDateTime({2026, 1, day}, {12, 0}, Qt::UTC), QFile::FileModificationTime));
        };
        QStringList expected{u"Fendrel-notes.txt"_s, u"other.ips"_s};
        for (int day = 1; day <= 14; ++day) {
            const QString name = u"Fendrel-%1.ips"_s.arg(day * 5 % 14); // the order of names is not that of dates
            put(name, day);
            if (day > 14 - CrashReporter::kept)
                expected.append(name);
        }
        put(u"other.ips"_s, 1);
        put(u"Fendrel-notes.txt"_s, 1);
        { const CrashReporter reporter(folder.path()); }
        expected.sort();
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files, QDir::Name), expected);
    }
};

int main(int argc, char** argv) {
    if (argc > 3 && qstrcmp(argv[1], "--child") == 0)
        return runChild(argc, argv);
    QCoreApplication application(argc, argv);
    CrashReporterTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_CrashReporter.moc"
