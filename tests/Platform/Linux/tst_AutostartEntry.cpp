#include "Files.h"
#include "Platform/Linux/Applications/DesktopEntry.h"
#include "Platform/Linux/Applications/ExecLine.h"
#include "Platform/Linux/Desktop/AutostartEntry.h"
#include "Platform/Linux/Desktop/AutostartFile.h"
#include "Table.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

using Content = std::optional<QByteArray>;
const QByteArray on = "[Desktop Entry]\nType=Application\nExec=fendrel\n";
const QByteArray hidden = "[Desktop Entry]\nHidden=true\n";
const QByteArray turnedOff = "[Desktop Entry]\nExec=fendrel\nX-GNOME-Autostart-enabled = false\n";
const QByteArray elsewhere = on + "[Desktop Action one]\nHidden=true\n";

} // namespace

class AutostartEntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void states_data() {
        const Table<Content, Content, bool, QString, QString> row("own", "everybodys", "starts", "turnOn", "turnOff");
        row("nothing", {}, {}, false, u"write"_s, u"none"_s);
        row("our own", on, {}, true, u"none"_s, u"remove"_s);
        row("own, turned off by the desktop", turnedOff, {}, false, u"write"_s, u"none"_s);
        row("another group", elsewhere, {}, true, u"none"_s, u"remove"_s);
        row("a package's", {}, on, true, u"none"_s, u"hide"_s);
        row("a package's, hidden", hidden, on, false, u"remove"_s, u"none"_s);
        row("own beside a package's", on, on, true, u"none"_s, u"hide"_s);
        row("own beside a hidden one", on, hidden, true, u"none"_s, u"remove"_s);
    }
    void states() {
        QFETCH(Content, own);
        QFETCH(Content, everybodys);
        QTEST(autostartFile::starts(own, everybodys), "starts");
        const auto change = [&](bool isOn) {
            using Kind = autostartFile::Change::Kind;
            const auto wanted = autostartFile::change(isOn, own, everybodys, u"/usr/bin/fendrel"_s);
            // Whatever is done leads to what was asked for.
            const Content after = wanted.kind == Kind::none     ? own
                                  : wanted.kind == Kind::remove ? Content()
                                                                : Content(wanted.content);
            if (autostartFile::starts(after, everybodys) != isOn)
                return u"wrong"_s;
            return wanted.kind == Kind::none                  ? u"none"_s
                   : wanted.kind == Kind::remove              ? u"remove"_s
                   : wanted.content.contains("Hidden=true\n") ? u"hide"_s
                                                              : u"write"_s;
        };
        QTEST(change(true), "turnOn");
        QTEST(change(false), "turnOff");
    }

    void namesAnyProgram() {
        const QString program = uR"(/home/a "b"/$HOME/`c`/50%/d\e/fendrel)"_s;
        const auto change = autostartFile::change(true, {}, {}, program);
        const auto entry = parseDesktopEntry(change.content, {});
        QVERIFY(entry);
        QCOMPARE(entry->tryExec, program);
        QCOMPARE(execArguments(*entry), QStringList{program});
    }

    void followsTheFiles() {
        const QTemporaryDir home;
        const QString file = home.filePath(u"config/autostart/org.fendrel.Fendrel.desktop"_s);
        Worker disk(u"disk"_s);
        AutostartEntry item(home.filePath(u"config/autostart"_s), {home.filePath(u"system"_s)}, u"/usr/bin/fendrel"_s,
                            disk);
        int changes = 0;
        item.onChanged = [&] { ++changes; };
        disk.flush(); // what was read before the change comes after it
        item.set(true);
        QVERIFY(item.isOn());
        disk.flush();
        QVERIFY(QFile::exists(file));
        QCoreApplication::processEvents();
        QVERIFY(item.isOn());
        QCOMPARE(changes, 1);

        putFile(file, hidden); // as the desktop's own settings do, perhaps before the folder is watched
        QTRY_VERIFY(!item.isOn());
        QVERIFY(QFile::remove(file));
        putFile(file, on);
        QTRY_VERIFY(item.isOn());
        item.set(false);
        disk.flush();
        QVERIFY(!QFile::exists(file));
    }

    void aFileThatCannotBeWrittenIsTold() {
        const QTemporaryDir home;
        putFile(home.filePath(u"config"_s), "a file where a folder should be");
        Worker disk(u"disk"_s);
        AutostartEntry item(home.filePath(u"config/autostart"_s), {}, u"/usr/bin/fendrel"_s, disk);
        item.set(true);
        QTRY_VERIFY(!item.isOn());
    }
};

QTEST_GUILESS_MAIN(AutostartEntryTest)
#include "tst_AutostartEntry.moc"
