#include "Dock/AutoHide.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;

class AutoHideTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsAndHides_data() {
        // The steps: E/e enabled or not, I/i pointer inside, H/h held, "." 50 ms pass.
        const Table<QByteArray, bool, bool> row("steps", "isShown", "isWaiting");
        row("always there when it doesn't hide", "i..........", true, false);
        row("waits a moment", "E........", true, true);
        row("then hides", "E.........", false, false);
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

    void showsAndHides() {
        QFETCH(const QByteArray, steps);
        AutoHide dock;
        ContinuousTime now{std::chrono::hours(1)};
        for (const char step : steps) {
            if (step == '.')
                dock.tick(now += std::chrono::milliseconds(50));
            else if (step == 'E' || step == 'e')
                dock.setEnabled(step == 'E', now);
            else if (step == 'I' || step == 'i')
                dock.setPointerInside(step == 'I', now);
            else
                dock.setHeld(step == 'H', now);
        }
        QTEST(dock.isShown(), "isShown");
        QTEST(dock.isWaiting(), "isWaiting");
    }
};

QTEST_APPLESS_MAIN(AutoHideTest)
#include "tst_AutoHide.moc"
