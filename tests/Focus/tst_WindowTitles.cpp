#include "Focus/WindowTitles.h"
#include "fakes/FakeAccessibility.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

const RunningApp editor{.pid = 11, .bundleID = u"org.editor"_s, .name = u"Editor"_s};
const RunningApp terminal{.pid = 12, .bundleID = u"org.terminal"_s};

struct World {
    FakeAccessibility accessibility;
    WindowTitles titles{accessibility};
    QStringList published; ///< "name: title", "-" for no title, empty for nothing in front

    World() {
        titles.onChange = [this](const std::optional<WindowTitles::Front>& front) {
            published.append(front ? front->appName + u": "_s + front->title.value_or(u"-"_s) : QString());
        };
    }
};

} // namespace

class WindowTitlesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followsWhatIsInFront() {
        World world;
        auto& [accessibility, titles, published] = world;
        accessibility.addWindow(11, u" Draft\n"_s);
        titles.track(editor);
        const WindowTitles::Front expected{
            .pid = 11, .bundleID = u"org.editor"_s, .appName = u"Editor"_s, .title = u"Draft"_s};
        QCOMPARE(titles.front(), expected);
        titles.track(terminal);
        QCOMPARE(accessibility.observerCount(11), 0); // what lies behind is left alone
        QCOMPARE(accessibility.observerCount(12), 1);
        titles.track({});
        QVERIFY(!titles.front() && !titles.window());
        QCOMPARE(accessibility.observerCount(12), 0);
        titles.track({});
        titles.track(editor);
        QCOMPARE(published, (QStringList{u"Editor: Draft"_s, u"org.terminal: -"_s, u""_s, u"Editor: Draft"_s}));
    }

    void publishesOnlyRealChanges() {
        World world;
        auto& [accessibility, titles, published] = world;
        const auto window = accessibility.addWindow(11, u"One"_s);
        titles.track(editor);
        accessibility.setTitle(window, u"One  "_s);
        accessibility.addWindow(11, u"One"_s); // another window of the same title
        titles.track(editor);
        accessibility.setTitle(window, u"Behind"_s); // no longer the focused one
        accessibility.setTitle(*titles.window(), u"Two"_s);
        accessibility.setTitle(*titles.window(), u" "_s);
        QCOMPARE(published, (QStringList{u"Editor: One"_s, u"Editor: Two"_s, u"Editor: "_s}));
    }

    void followsTheFocusedWindowElseTheMainOne() {
        World world;
        auto& [accessibility, titles, published] = world;
        titles.track(editor);
        const auto first = accessibility.addWindow(11, u"First"_s);
        accessibility.addWindow(11, u"Second"_s);
        accessibility.focus(first);
        accessibility.removeWindow(first);
        accessibility.mainWindows.insert(11, accessibility.addWindow(12, u"Main"_s));
        accessibility.removeWindow(*titles.window()); // none has the focus now
        accessibility.mainWindows.clear();
        accessibility.addWindow(11, u"Last"_s);
        accessibility.removeWindow(*titles.window());
        QCOMPARE(published, (QStringList{u"Editor: -"_s, u"Editor: First"_s, u"Editor: Second"_s, u"Editor: First"_s,
                                         u"Editor: Second"_s, u"Editor: Main"_s, u"Editor: Last"_s, u"Editor: -"_s}));
    }

    void passesOverItselfAndTheNameless() {
        World world;
        auto& [accessibility, titles, published] = world;
        const auto window = accessibility.addWindow(11, u"Draft"_s);
        titles.track(editor);
        titles.track(RunningApp{.pid = QCoreApplication::applicationPid(), .bundleID = u"self"_s});
        titles.track(RunningApp{.pid = 13});
        accessibility.setTitle(window, u"Draft 2"_s); // still followed
        QCOMPARE(published, (QStringList{u"Editor: Draft"_s, u"Editor: Draft 2"_s}));
    }

    void noticesWhenItMayReadTitles() {
        World world;
        auto& [accessibility, titles, published] = world;
        accessibility.setTrusted(false);
        const auto window = accessibility.addWindow(11, u"Secret"_s);
        titles.track(editor);
        QCOMPARE(accessibility.observerCount(11), 0);
        titles.requestPermission();
        QCOMPARE(accessibility.requests, QStringList{u"permission"_s});
        accessibility.setTrusted(true); // without a new activation
        accessibility.setTitle(window, u"Open"_s);
        accessibility.setTrusted(false);
        accessibility.setTitle(window, u"Closed"_s);
        QCOMPARE(published, (QStringList{u"Editor: -"_s, u"Editor: Secret"_s, u"Editor: Open"_s, u"Editor: -"_s}));
    }
};

QTEST_APPLESS_MAIN(WindowTitlesTest)
#include "tst_WindowTitles.moc"
