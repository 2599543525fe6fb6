#include "Platform/Linux/Desktop/DesktopRemedies.h"

#include <QtTest>

#include <unistd.h>

using namespace fendrel;
using namespace Qt::StringLiterals;

class DesktopRemediesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatCanBeRunHere_data() {
        QTest::addColumn<QString>("thing");
        QTest::addColumn<QString>("desktop");
        QTest::addColumn<QString>("system");
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QStringList>("page");
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("isInstalled");
        const QString all = u"transparency"_s;
        const QString firefox = u"/usr/share/mozilla/extensions/{ec8030f7-c20a-464f-9b0e-13a3a9e97384}"_s;
        QTest::newRow("the desktop's page")
            << all << u"XFCE"_s << u"debian"_s << QStringList{u"xfwm4-tweaks-settings"_s}
            << QStringList{u"xfwm4-tweaks-settings"_s} << u""_s << false;
        QTest::newRow("another desktop's page")
            << all << u"MATE"_s << u"debian"_s << QStringList{u"xfwm4-tweaks-settings"_s} << QStringList() << u""_s
            << false;
        QTest::newRow("a package") << all << u"i3"_s << u"debian"_s << QStringList{u"apt"_s} << QStringList()
                                   << u"sudo apt install picom && picom --daemon"_s << false;
        QTest::newRow("installed already") << all << u"i3"_s << u"debian"_s << QStringList{u"apt"_s, u"picom"_s}
                                           << QStringList() << u"picom --daemon"_s << false;
        QTest::newRow("the first program there is")
            << u"calendar"_s << u"XFCE"_s << u"debian"_s << QStringList{u"apt"_s, u"thunderbird"_s}
            << QStringList{u"thunderbird"_s, u"-calendar"_s} << u"sudo apt install gnome-calendar"_s << false;
        QTest::newRow("a path for a shell")
            << u"browser Firefox"_s << u"XFCE"_s << u"debian"_s << QStringList{firefox} << QStringList()
            << u"sudo ln -sfn '/opt/it'\\''s here/extension' '"_s + firefox + u"/companion@fendrel.org'"_s << false;
        QTest::newRow("a link that is there")
            << u"browser Firefox"_s << u"XFCE"_s << u"debian"_s
            << QStringList{firefox, firefox + u"/companion@fendrel.org"_s} << QStringList() << u""_s << true;
        QTest::newRow("a browser that takes signed ones only")
            << u"browser Firefox"_s << u"XFCE"_s << u"ubuntu"_s << QStringList{firefox} << QStringList() << u""_s
            << false;
    }
    void onlyWhatCanBeRunHere() {
        QFETCH(const QStringList, existing);
        QFETCH(const QString, thing);
        QFETCH(const QString, desktop);
        QFETCH(const QString, system);
        DesktopRemedies::Surroundings surroundings{
            .desktops = {u"X-Own"_s, desktop},
            .system = system,
            .extension = u"/opt/it's here/extension"_s,
            .exists = [=](const QString& name) { return existing.contains(name); },
            .isChangeable = [](const QString&) { return false; }};
        const Remedy remedy = DesktopRemedies(surroundings).find().value(thing);
        QTEST(remedy.page, "page");
        QTEST(remedy.command, "command");
        QTEST(remedy.isInstalled, "isInstalled");

        // What one user can change is not put before all of them.
        surroundings.isChangeable = [](const QString& folder) { return folder == "/opt/it's here/extension"_L1; };
        const Remedy own = DesktopRemedies(surroundings).find().value(thing);
        QCOMPARE(own.command, remedy.command.contains("ln -s"_L1) ? QString() : remedy.command);
    }

    void aFolderOfOnesOwnIsChangeable() {
        const QTemporaryDir home;
        const auto session = DesktopRemedies::ofThisSession(home.path());
        QVERIFY(session.isChangeable(home.path()));
        QVERIFY(session.isChangeable(home.filePath(u"not there"_s)));
        if (geteuid() != 0)
            QVERIFY(!session.isChangeable(u"/usr/share"_s));
    }
};

QTEST_GUILESS_MAIN(DesktopRemediesTest)
#include "tst_DesktopRemedies.moc"
