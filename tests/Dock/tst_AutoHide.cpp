#include "Dock/AutoHide.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class AutoHideTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsAndHides_data();
    void showsAndHides();
};

void AutoHideTest::showsAndHides_data() {
    QTest::addColumn<QString>("steps"); // E/e enabled or not, I/i pointer inside, H/h held, "." 50 ms pass
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<bool>("isWaiting");
    const auto row = [](const char* name, const char* steps, bool isShown, bool isWaiting) {
        QTest::newRow(name) << QString::fromLatin1(steps) << isShown << isWaiting;
    };
    row("always there when it doesn't hide", "i..........", true, false);
    row("waits a moment", "E........", true, true);
    row("then hides", "E.........", false, false);
    row("stays under the pointer", "EI...........", true, false);
    row("waits anew after the pointer", "E......Ii........", true, true);
    row("hides after the pointer", "EIi.........", false, false);
    row("telling again doesn't prolong", "EIi.....i....", false, false);
    row("comes back for the pointer", "E.........I", true, false);
    row("a menu holds it", "EIHi............", true, false);
    row("a menu keeps it while the pointer is elsewhere", "E.........HIi", true, false);
    row("hides after the menu", "EIHih.........", false, false);
    row("comes back when it shall not hide any more", "E.........e", true, false);
    row("not hidden by the wait of before", "E....e..........", true, false);
}

void AutoHideTest::showsAndHides() {
    QFETCH(const QString, steps);
    AutoHide dock;
    ContinuousTime now{std::chrono::hours(1)};
    for (const QChar step : steps) {
        if (step == u'.')
            dock.tick(now += std::chrono::milliseconds(50));
        else if (step.toLower() == u'e')
            dock.setEnabled(step.isUpper(), now);
        else if (step.toLower() == u'i')
            dock.setPointerInside(step.isUpper(), now);
        else
            dock.setHeld(step.isUpper(), now);
    }
    QTEST(dock.isShown(), "isShown");
    QTEST(dock.isWaiting(), "isWaiting");
}

QTEST_APPLESS_MAIN(AutoHideTest)
#include "tst_AutoHide.moc"
