#include "App/Workspace.h"
#include "fakes/FakeAccessibility.h"
#include "fakes/FakeApplications.h"
#include "fakes/FakeShell.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

struct Desktop {
    FakeApplications applications;
    FakeAccessibility accessibility;
    FakeShell shell;
    Workspace workspace{applications, accessibility, shell};

    void run(qint64 pid, const QString& bundleID, qint64 launchOrder, bool isRegular = true) {
        applications.launch({.pid = pid, .bundleID = bundleID, .isRegular = isRegular, .launchOrder = launchOrder});
        workspace.refreshRunning();
    }
};

} // namespace

class WorkspaceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsRunningApplicationsOldestFirst() {
        Desktop desktop;
        const QSignalSpy changes(&desktop.workspace, &Workspace::runningChanged);
        desktop.run(14, u"panel"_s, 5, false);
        desktop.run(15, u""_s, 6);
        desktop.run(QCoreApplication::applicationPid(), u"self"_s, 1);
        QCOMPARE(changes.count(), 0);
        desktop.run(11, u"young"_s, 30);
        desktop.run(12, u"old"_s, 10);
        desktop.run(13, u"same as old"_s, 10);
        desktop.run(16, u"old"_s, 40);
        QCOMPARE(changes.count(), 4); // a second process has windows too
        const QStringList expected{u"old"_s, u"same as old"_s, u"young"_s};
        QCOMPARE(desktop.workspace.runningApps(), expected);
        QCOMPARE(desktop.workspace.running(), QSet<QString>(expected.begin(), expected.end()));
        desktop.applications.end(12);
        desktop.workspace.refreshRunning();
        QCOMPARE(desktop.workspace.runningApps(), (QStringList{u"same as old"_s, u"young"_s, u"old"_s}));
    }

    void sortsAndMergesWhatIsInstalled() {
        Desktop desktop;
        auto& [applications, accessibility, shell, workspace] = desktop;
        const InstalledApp anvil{u"z"_s, u"Anvil"_s}, mill{u"a"_s, u"Mill"_s}, otherMill{u"c"_s, u"Mill"_s};
        applications.installedApps = {otherMill, mill, anvil, mill};
        QCOMPARE(workspace.installedApps(), (QList{anvil, otherMill, mill}));
        applications.installedApps.clear();
        QCOMPARE(workspace.displayName(u"z"_s), u"Anvil"_s);
        workspace.refreshInstalled();
        desktop.run(11, u"z"_s, 1);
        QCOMPARE(workspace.displayName(u"z"_s), u"z"_s); // nobody knows a name
    }

    void asksTheSystemOnceForWhatItKnows() {
        Desktop desktop;
        auto& [applications, accessibility, shell, workspace] = desktop;
        const auto known = [&] { return workspace.url(u"app"_s).value_or(u"-"_s) + workspace.icon(u"app"_s).file; };
        const auto install = [&](const QString& path) {
            applications.locations.insert(u"app"_s, path);
            applications.icons.insert(u"app"_s, {.file = path + u".svg"_s});
        };
        QCOMPARE(known(), u"-"_s);
        workspace.revealInFinder(u"app"_s);
        install(u"/first"_s); // what was not there at first may have been installed since
        QCOMPARE(known(), u"/first/first.svg"_s);
        install(u"/second"_s);
        QCOMPARE(known(), u"/first/first.svg"_s);
        workspace.refreshInstalled();
        QCOMPARE(known(), u"/second/second.svg"_s);
        workspace.revealInFinder(u"app"_s);
        QCOMPARE(shell.revealed, QList<QStringList>{{u"/second"_s}});
    }

    void actionsReachEveryInstance() {
        Desktop desktop;
        auto& [applications, accessibility, shell, workspace] = desktop;
        desktop.run(11, u"a"_s, 1);
        desktop.run(12, u"b"_s, 2);
        desktop.run(13, u"a"_s, 3);
        desktop.run(14, u"c"_s, 4);
        workspace.hide(u"a"_s);
        workspace.unhide(u"a"_s);
        workspace.quit(u"a"_s);
        workspace.forceQuit(u"a"_s);
        workspace.hideOthers(u"b"_s);
        workspace.open(u"d"_s, false);
        workspace.quit(u"nobody"_s);
        QCOMPARE(std::exchange(applications.requests, {}).join(u", "_s),
                 u"hide 11, hide 13, unhide 11, unhide 13, quit 11, quit 13, forceQuit 11, forceQuit 13, "
                 "hide 11, hide 13, hide 14, open d behind"_s);
        for (const qint64 pid : {11, 12, 13})
            accessibility.addWindow(pid, QString::number(pid));
        for (auto& window : accessibility.windowList)
            window.info.isMinimized = window.pid != 13;
        QCOMPARE(workspace.windows(u"a"_s).size(), 2);
        QVERIFY(workspace.hasVisibleWindow(u"a"_s) && !workspace.hasVisibleWindow(u"b"_s));
        workspace.showAllWindows(u"a"_s);
        QCOMPARE(applications.requests, (QStringList{u"unhide 11"_s, u"unhide 13"_s}));
        QCOMPARE(accessibility.requests, QStringList{u"restore 1"_s});
        accessibility.setTrusted(false);
        QVERIFY(!workspace.hasVisibleWindow(u"a"_s));
    }
};

QTEST_APPLESS_MAIN(WorkspaceTest)
#include "tst_Workspace.moc"
