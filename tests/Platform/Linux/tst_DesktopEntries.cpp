#include "Files.h"
#include "Platform/Linux/Applications/DesktopEntries.h"
#include "fakes/FakeClock.h"

#include <QtTest>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

/// Two folders of entries, the user's own first.
struct Home {
    QTemporaryDir folder;
    FakeClock clock;
    DesktopEntries entries;
    int changes = 0;

    Home() : entries(made({u"/own"_s, u"/system"_s}), DesktopEntryContext{}, clock) {
        entries.onChanged = [this] { ++changes; };
    }
    QStringList made(QStringList names) const {
        for (QString& name : names)
            QDir().mkpath(name = folder.path() + name);
        return names;
    }
    void put(const QString& path, const QByteArray& rest) const {
        putFile(folder.path() + path, "[Desktop Entry]\nType=Application\nName=A\n" + rest);
    }
    /// Waits until the kernel has told of a change, then until its consequences have settled.
    bool settles() {
        const bool isTold = QTest::qWaitFor([this] { return clock.pending() > 0; });
        clock.advance(1s);
        return isTold;
    }
    QString exec(const QString& id) const {
        const auto* entry = entries.index().byID(id);
        return entry ? entry->exec : QString();
    }
};

} // namespace

class DesktopEntriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followsItsFolders() {
        Home home;
        home.put(u"/system/a.desktop"_s, "Exec=system\n");
        home.put(u"/system/vendor/b.desktop"_s, "Exec=b\n");
        QVERIFY(home.settles());
        QCOMPARE(home.exec(u"a"_s), u"system"_s);
        QCOMPARE(home.exec(u"vendor-b"_s), u"b"_s);
        home.put(u"/own/a.desktop"_s, "Exec=own\n");
        QVERIFY(home.settles());
        QCOMPARE(home.exec(u"a"_s), u"own"_s);
        home.put(u"/own/a.desktop"_s, "Exec=edited in its place\n");
        QVERIFY(home.settles());
        QCOMPARE(home.exec(u"a"_s), u"edited in its place"_s);
        home.put(u"/own/a.desktop"_s, "Hidden=true\n"); // hides the system's, too
        QVERIFY(home.settles());
        QCOMPARE(home.exec(u"a"_s), QString());
        QCOMPARE(home.changes, 4);
    }

    void readsActions() {
        const auto entry = parseDesktopEntry("[Desktop Entry]\nType=Application\nName=A\nExec=a\n"
                                             "Actions=new;bare;elsewhere;missing;new;private\n"
                                             "[Desktop Action private]\nName=Private\nName[de]=Privat\nExec=a -p\n"
                                             "[Desktop Action bare]\nName=No program\n"
                                             "[Desktop Action elsewhere]\nName=X\nExec=a -x\nOnlyShowIn=Other;\n"
                                             "[Desktop Action new]\nName=New\nExec=a -n\nIcon=new\n",
                                             {.locales = {u"de"_s}, .desktops = {u"This"_s}});
        QVERIFY(entry);
        const QList<DesktopAction> expected{{.id = u"new"_s, .name = u"New"_s, .exec = u"a -n"_s, .icon = u"new"_s},
                                            {.id = u"private"_s, .name = u"Privat"_s, .exec = u"a -p"_s}};
        QCOMPARE(entry->actions, expected);
    }

    void whatWasHandedOutLivesWhileNothingChanges() {
        Home home;
        home.put(u"/own/a.desktop"_s, "Exec=a\n");
        QVERIFY(home.settles());
        const DesktopEntry* const handedOut = home.entries.index().byID(u"a"_s);
        home.changes = 0;
        putFile(home.folder.path() + u"/own/mimeinfo.cache"_s, "no entry");
        QVERIFY(home.settles());
        home.put(u"/own/a.desktop"_s, "Exec=a\n"); // as it was
        QVERIFY(home.settles());
        QCOMPARE(home.changes, 0);
        QCOMPARE(home.entries.index().byID(u"a"_s), handedOut);
        QCOMPARE(handedOut->exec, u"a"_s);
    }
};

QTEST_GUILESS_MAIN(DesktopEntriesTest)
#include "tst_DesktopEntries.moc"
