#include "DesktopWorld.h"
#include "Files.h"
#include "Platform/MakePlatform.h"

#include <QGuiApplication>
#include <QWindow>

#include <fcntl.h>

using namespace fendrel;
using namespace Qt::StringLiterals;

/// Real windows of real processes under a real window manager. Wants a display of its own.
class tst_X11Desktop : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(!missingRequirement(), "this test wants an X server with a window manager");
        putFile(m_entries.filePath(u"org.example.Program.desktop"_s),
                "[Desktop Entry]\nType=Application\nName=Example\nStartupWMClass=example\nExec=" WINDOW_PROGRAM
                " launched waits\n");
        QCOMPARE(qunsetenv("DESKTOP_STARTUP_ID"), true);
    }

    void init() {
        m_world = std::make_unique<DesktopWorld>(QStringList{m_entries.path()});
        QTRY_COMPARE(m_world->applications.running().size(), 0); // of the test before
    }

    void cleanup() { m_world.reset(); }

    void applicationsComeNamedAndGo() {
        qint64 pid = 0;
        {
            WindowProgram program(u"hello"_s);
            pid = program.pid();
            QTRY_VERIFY(m_world->running(pid));
            QCOMPARE(m_world->running(pid)->bundleID, u"org.example.Program"_s); // by its program
            QCOMPARE(m_world->running(pid)->name, u"Example"_s);
            QVERIFY(m_world->running(pid)->isRegular);
            QCOMPARE(m_world->titles(pid), QStringList{u"hello"_s});

            QVERIFY(program.tell(u"class slack Slack"_s));
            QTRY_COMPARE(m_world->running(pid)->bundleID, u"com.tinyspeck.slackmacgap"_s);

            WindowProgram later(u"later"_s);
            QTRY_VERIFY(m_world->running(later.pid()));
            QVERIFY(m_world->running(pid)->launchOrder <= m_world->running(later.pid())->launchOrder);

            QVERIFY(program.tell(u"type DOCK"_s));
            QTRY_VERIFY(m_world->running(pid) && !m_world->running(pid)->isRegular);
        }
        QTRY_VERIFY(!m_world->running(pid));
    }

    void theMomentBetweenTwoWindowsIsNotReported() {
        WindowProgram other(u"other"_s);
        {
            WindowProgram front(u"front"_s);
            QTRY_COMPARE(m_world->front(), front.pid());
        }
        QTRY_COMPARE(m_world->front(), other.pid());
        QVERIFY(!m_world->fronts.contains(0));
        QVERIFY(other.tell(u"close"_s));
        QTRY_COMPARE(m_world->fronts.last(), 0); // now there is nothing
    }

    void titlesAreToldToObservers() {
        WindowProgram program(u"one"_s);
        QTRY_COMPARE(m_world->front(), program.pid());
        QStringList heard;
        int windowChanges = 0;
        const auto& accessibility = m_world->accessibility;
        const auto handle = m_world->accessibility.observe(
            program.pid(), {.onWindowChanged = [&] { ++windowChanges; },
                            .onTitleChanged = [&](WindowID window) { heard += accessibility.title(window).value(); }});
        QVERIFY(program.tell(u"title Grüße – 世界"_s));
        QTRY_COMPARE(heard, QStringList{u"Grüße – 世界"_s});
        QVERIFY(program.tell(u"title Grüße – 世界"_s)); // the same again is no news
        QVERIFY(program.tell(u"icon 8 0"_s));           // nor is anything but the title
        QVERIFY(program.tell(u"title last"_s));
        QTRY_COMPARE(heard, (QStringList{u"Grüße – 世界"_s, u"last"_s}));

        QCOMPARE(windowChanges, 0);
        const auto before = accessibility.focusedWindow(program.pid());
        QVERIFY(program.tell(u"window"_s));
        QTRY_VERIFY(accessibility.focusedWindow(program.pid()) != before);
        QVERIFY(windowChanges > 0);
        m_world->accessibility.raise(*before);
        QTRY_COMPARE(accessibility.focusedWindow(program.pid()), before);
        QCOMPARE(accessibility.windows(program.pid()).first().id, *before);
    }

    void hiddenApplicationsComeBackWithoutTheKeyboard() {
        WindowProgram hidden(u"hidden"_s);
        QTRY_COMPARE(m_world->front(), hidden.pid());
        WindowProgram front(u"front"_s);
        QTRY_COMPARE(m_world->front(), front.pid());
        m_world->applications.hide(hidden.pid());
        QTRY_VERIFY(m_world->isMinimized(hidden.pid()));
        QVERIFY(m_world->running(hidden.pid())); // it still runs
        QVERIFY(m_world->isHidden(hidden.pid()));

        m_world->applications.unhide(hidden.pid());
        QTRY_VERIFY(!m_world->isMinimized(hidden.pid()));
        QTRY_COMPARE(m_world->front(), front.pid());

        const auto window = m_world->accessibility.windows(hidden.pid()).first().id;
        bool isTold = false;
        m_world->accessibility.onWindowsChanged = [&] { isTold = m_world->isMinimized(hidden.pid()); };
        m_world->accessibility.minimize(window);
        QTRY_VERIFY(m_world->isMinimized(hidden.pid()));
        QTRY_VERIFY(isTold);
        m_world->accessibility.onWindowsChanged = [] {};
        QVERIFY(!m_world->isHidden(hidden.pid()));
        m_world->applications.unhide(hidden.pid()); // the user minimised it, so it is not ours to bring back
        m_world->accessibility.restore(window);
        QTRY_VERIFY(!m_world->isMinimized(hidden.pid()));
        QTRY_COMPARE(m_world->front(), front.pid());
    }

    void whoAsksForTheUserIsHeardUntilTheUserCame() {
        WindowProgram caller(u"caller"_s);
        QTRY_COMPARE(m_world->front(), caller.pid());
        QVERIFY(caller.tell(u"urgent"_s)); // the user is there
        WindowProgram front(u"front"_s);
        QTRY_COMPARE(m_world->front(), front.pid());
        const auto isHeard = [&] { return m_world->running(caller.pid())->wantsAttention; };
        QVERIFY(!isHeard());
        const auto window = static_cast<xcb_window_t>(m_world->accessibility.windows(caller.pid()).first().id.value);
        const auto demand = [&] {
            const auto state = m_world->connection->atoms().netWmStateDemandsAttention;
            X11Requests(*m_world->connection).addStates(window, state, XCB_ATOM_NONE);
            return true;
        };
        for (const auto& ask : {std::function(demand), std::function([&] { return caller.tell(u"urgent"_s); })}) {
            m_world->runningChanges = 0;
            QVERIFY(ask());
            QTRY_VERIFY(isHeard());
            QCOMPARE(m_world->runningChanges, 1);
            m_world->applications.activate(caller.pid());
            QTRY_VERIFY(!isHeard());
            m_world->applications.activate(front.pid());
            QTRY_COMPARE(m_world->front(), front.pid());
            QVERIFY(!isHeard());
        }
    }

    void hungApplicationHoldsNothingUp() {
        WindowProgram hung(u"hung"_s);
        WindowProgram other(u"other"_s);
        QTRY_COMPARE(m_world->front(), other.pid());
        hung.signal(SIGSTOP);
        QElapsedTimer elapsed;
        elapsed.start();
        const auto windows = m_world->accessibility.windows(hung.pid());
        QCOMPARE(windows.size(), 1);
        QVERIFY(m_world->accessibility.frame(windows.first().id));
        m_world->applications.activate(hung.pid());
        m_world->accessibility.close(windows.first().id);
        m_world->applications.hide(hung.pid());
        QVERIFY2(elapsed.elapsed() < 250, "a hung application held us up");
        m_world->applications.activate(other.pid());
        QTRY_COMPARE(m_world->front(), other.pid());
        m_world->applications.quit(other.pid());
        m_world->applications.forceQuit(hung.pid());
        QTRY_COMPARE(m_world->applications.running().size(), 0);
    }

    void windowManagerMayRestart() {
        WindowProgram first(u"first"_s);
        QTRY_COMPARE(m_world->front(), first.pid());
        WindowProgram second(u"second"_s);
        QTRY_COMPARE(m_world->front(), second.pid());
        const qint64 manager = managerProcess();
        QVERIFY(manager > 0);
        const QStringList command = ProcessFacts::read(manager).arguments;
        m_world->runningChanges = 0;

        QVERIFY(::kill(static_cast<pid_t>(manager), SIGKILL) == 0);
        QTRY_VERIFY(!m_world->windows->hasManager());
        QVERIFY(second.tell(u"title alone"_s)); // properties need no window manager
        QTRY_COMPARE(m_world->titles(second.pid()), QStringList{u"alone"_s});
        QVERIFY(QProcess::startDetached(command.first(), {command.begin() + 1, command.end() - 1}));
        QTRY_VERIFY(m_world->windows->hasManager());

        m_world->applications.activate(first.pid());
        QTRY_COMPARE(m_world->front(), first.pid());
        m_world->applications.activate(second.pid());
        QTRY_COMPARE(m_world->front(), second.pid());
        QCOMPARE(m_world->runningChanges, 0);
        QVERIFY(!m_world->fronts.contains(0));
        WindowProgram third(u"third"_s);
        QTRY_COMPARE(m_world->front(), third.pid());
    }

    void windowsMayVanishAtAnyMoment() {
        WindowProgram steady(u"steady"_s);
        WindowProgram restless(u"restless"_s);
        QTRY_VERIFY(m_world->running(steady.pid()) && m_world->running(restless.pid()));
        int seen = 0;
        connect(m_world->windows.get(), &X11Windows::listChanged, m_world->windows.get(), [&] {
            for (const X11Window& window : m_world->windows->all()) {
                const WindowID id{window.id};
                m_world->accessibility.frame(id);
                if (window.title != "flicker"_L1)
                    continue;
                ++seen;
                m_world->accessibility.raise(id);
                m_world->accessibility.minimize(id);
                m_world->accessibility.close(id);
                m_world->accessibility.restore(id);
            }
        });
        restless.send(u"flicker 100"_s);
        QTRY_VERIFY(seen > 0);
        m_world->applications.activate(steady.pid());
        QTRY_COMPARE(m_world->front(), steady.pid());
        QTRY_COMPARE(m_world->windows->all().size(), 2);
    }

    void oneProcessMayShowSeveralApplications() {
        WindowProgram office(u"text"_s);
        QTRY_VERIFY(m_world->running(office.pid()));
        QVERIFY(office.tell(u"window"_s));
        QVERIFY(office.tell(u"class calc Calc"_s));
        QTRY_COMPARE(m_world->applications.running().size(),
                     1); // without an entry of its own it is the same program

        const QString entry = m_entries.filePath(u"calc.desktop"_s);
        putFile(entry, "[Desktop Entry]\nType=Application\nName=Calc\nStartupWMClass=calc\nExec=calc\n");
        QTRY_COMPARE(m_world->applications.running().size(), 2);
        QTRY_COMPARE(m_world->applications.frontmost()->bundleID, u"calc"_s);
        const qint64 calc = m_world->front();
        QVERIFY(calc < 0);
        m_world->applications.activate(office.pid());
        QTRY_COMPARE(m_world->front(), office.pid());
        m_world->applications.hide(calc);
        QTRY_VERIFY(m_world->isMinimized(calc));
        QVERIFY(!m_world->isMinimized(office.pid()));
        QVERIFY(QFile::remove(entry));
        QTRY_COMPARE(m_world->applications.running().size(), 1);
    }

    void dialogsOfHelpersBelongToTheirApplication() {
        WindowProgram application(u"application"_s);
        QTRY_COMPARE(m_world->front(), application.pid());
        const auto leader = m_world->accessibility.mainWindow(application.pid());
        WindowProgram helper(u"helper"_s);
        QTRY_COMPARE(m_world->front(), helper.pid());
        QVERIFY(helper.tell(u"dialogof %1"_s.arg(leader->value)));
        QTRY_COMPARE(m_world->accessibility.windows(application.pid()).size(), 2);
        QTRY_COMPARE(m_world->front(), application.pid());
        QVERIFY(!m_world->running(helper.pid()));
    }

    void launchedApplicationsOutliveUs() {
        m_world->applications.open(u"org.example.Program"_s, true);
        QTRY_COMPARE(m_world->applications.running().size(), 1);
        const RunningApp launched = m_world->applications.running().first();
        QCOMPARE(launched.bundleID, u"org.example.Program"_s);
        QTRY_COMPARE(m_world->front(), launched.pid);
        const auto pid = static_cast<pid_t>(launched.pid);
        QVERIFY(::getsid(pid) != ::getsid(0)); // what ends our session passes it by
        const QByteArray status = contentOf(u"/proc/%1/status"_s.arg(pid));
        QVERIFY(status.contains("PPid:") &&
                !status.contains("PPid:\t" + QByteArray::number(QCoreApplication::applicationPid())));
        QCOMPARE(ProcessFacts::read(pid).launchedEntry, m_entries.filePath(u"org.example.Program.desktop"_s));

        WindowProgram other(u"other"_s);
        QVERIFY(other.tell(u"class slack Slack"_s));
        QTRY_COMPARE(m_world->front(), other.pid());
        m_world->applications.open(u"org.example.Program"_s, false); // it runs: nothing to do
        m_world->applications.open(u"org.example.Program"_s, true);
        QTRY_COMPARE(m_world->front(), launched.pid);
        QCOMPARE(m_world->running(launched.pid)->pid, launched.pid);
        QCOMPARE(m_world->applications.running().size(), 2); // and no third one
        m_world->applications.quit(launched.pid);
        QTRY_VERIFY(!m_world->running(launched.pid));
    }

    void applicationsAreStartedForWhatTheyAreWantedFor() {
        const QString id = u"org.example.Opener"_s;
        const QString file = m_entries.filePath(id + u".desktop"_s);
        putFile(file, "[Desktop Entry]\nType=Application\nName=Opener\nActions=private;NewWindow\n"
                      "Exec=" WINDOW_PROGRAM " %f waits\n"
                      "[Desktop Action private]\nName=Private\nExec=" WINDOW_PROGRAM " private waits\n"
                      "[Desktop Action NewWindow]\nName=Window\nExec=" WINDOW_PROGRAM " again waits\n");
        auto& applications = m_world->applications;
        QTRY_COMPARE(applications.actions(id).size(), 2);
        QCOMPARE(applications.applicationAt(QUrl::fromLocalFile(file)), id);
        QCOMPARE(applications.applicationAt(QUrl(u"file:///elsewhere/%1.desktop"_s.arg(id))), id);
        QCOMPARE(applications.applicationAt(QUrl(u"application://%1.desktop"_s.arg(id))), id);
        QCOMPARE(applications.applicationAt(QUrl::fromLocalFile(u"/elsewhere/notes.txt"_s)), std::nullopt);

        applications.openFiles(id, {QUrl::fromLocalFile(u"/a b"_s), QUrl(u"https://a.example/"_s)});
        applications.openWindow(id);
        applications.runAction(id, u"private"_s);
        applications.runAction(id, u"missing"_s);
        QTRY_COMPARE(applications.running().size(), 3);
        QStringList titles;
        for (const RunningApp& app : applications.running()) {
            titles += m_world->titles(app.pid);
            applications.quit(app.pid);
        }
        titles.sort();
        QCOMPARE(titles, (QStringList{u"/a b"_s, u"again"_s, u"private"_s}));
        QVERIFY(QFile::remove(file));
    }

    void iconsOfWindowsAreTheLastResort() {
        WindowProgram program(u"program"_s);
        QVERIFY(program.tell(u"icon 32 4278255360"_s)); // opaque green
        QTRY_VERIFY(m_world->running(program.pid()));
        const auto icon = [&] { return m_world->applications.icon(m_world->running(program.pid())->bundleID); };
        QTRY_COMPARE(icon().image.size(), QSize(32, 32));
        QCOMPARE(icon().image.pixelColor(3, 3), QColor(Qt::green));
        QVERIFY(program.tell(u"icon 64 4278190335"_s)); // blue
        QTRY_COMPARE(icon().image.pixelColor(3, 3), QColor(Qt::blue));
    }

private:
    qint64 managerProcess() const {
        const auto& atoms = m_world->connection->atoms();
        const auto root = m_world->connection->root();
        const auto check = m_world->connection->property(root, atoms.netSupportingWmCheck).number();
        return check ? X11WindowReader(*m_world->connection).read(*check).pid.value_or(0) : 0;
    }

    QTemporaryDir m_entries;
    std::unique_ptr<DesktopWorld> m_world;
};

QTEST_MAIN(tst_X11Desktop)
#include "tst_X11Desktop.moc"
