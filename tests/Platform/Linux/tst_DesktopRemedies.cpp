#include "Platform/Linux/Desktop/DesktopRemedies.h"

#include <QtTest>

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
        const QString all = u"transparency"_s;
        const QString firefox = u"/usr/share/mozilla/extensions/{ec8030f7-c20a-464f-9b0e-13a3a9e97384}"_s;
        QTest::newRow("the desktop's page")
            << all << u"XFCE"_s << u"debian"_s << QStringList{u"xfwm4-tweaks-settings"_s}
            << QStringList{u"xfwm4-tweaks-settings"_s} << u""_s;
        QTest::newRow("another desktop's page")
            << all << u"MATE"_s << u"debian"_s << QStringList{u"xfwm4-tweaks-settings"_s} << QStringList() << u""_s;
        QTest::newRow("a package") << all << u"i3"_s << u"debian"_s << QStringList{u"apt"_s} << QStringList()
                                   << u"sudo apt install picom && picom --daemon"_s;
        QTest::newRow("installed already") << all << u"i3"_s << u"debian"_s << QStringList{u"apt"_s, u"picom"_s}
                                           << QStringList() << u"picom --daemon"_s;
        QTest::newRow("the first program there is")
            << u"calendar"_s << u"XFCE"_s << u"debian"_s << QStringList{u"apt"_s, u"thunderbird"_s}
            << QStringList{u"thunderbird"_s, u"-calendar"_s} << u"sudo apt install gnome-calendar"_s;
        QTest::newRow("a path for a shell")
            << u"browser Firefox"_s << u"XFCE"_s << u"debian"_s << QStringList{firefox} << QStringList()
            << u"sudo ln -sfn '/opt/it'\\''s here/extension' '"_s + firefox + u"/companion@fendrel.org'"_s;
        QTest::newRow("a browser that takes signed ones only")
            << u"browser Firefox"_s << u"XFCE"_s << u"ubuntu"_s << QStringList{firefox} << QStringList() << u""_s;
    }
    void onlyWhatCanBeRunHere() {
        QFETCH(const QStringList, existing);
        QFETCH(const QString, thing);
        QFETCH(const QString, desktop);
        QFETCH(const QString, system);
        const DesktopRemedies remedies({.desktops = {u"X-Own"_s, desktop},
                                        .system = system,
                                        .extension = u"/opt/it's here/extension"_s,
                                        .exists = [=](const QString& name) { return existing.contains(name); }});
        QTEST(remedies.page(thing), "page");
        QTEST(remedies.command(thing), "command");
    }
};

QTEST_GUILESS_MAIN(DesktopRemediesTest)
#include "tst_DesktopRemedies.moc"
