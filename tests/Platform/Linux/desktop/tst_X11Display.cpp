#include "DesktopWorld.h"
#include "Platform/Linux/X11/X11HotKeys.h"
#include "Platform/Linux/X11/X11PointerGuard.h"
#include "Platform/MakePlatform.h"

using namespace fendrel;
using namespace Qt::StringLiterals;

/// The display itself: its monitors, its edges, its keys. Wants one of its own.
class tst_X11Display : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY2(!missingRequirement(), "this test wants an X server with a window manager"); }
    void init() { m_world = std::make_unique<DesktopWorld>(QStringList{}); }
    void cleanup() { m_world.reset(); }

    void panelsOfOthersShrinkTheWorkArea() {
        const auto area = [&] { return m_world->displays.all().first().workArea; };
        const QRect whole = m_world->displays.all().first().frame;
        QCOMPARE(area(), whole);
        int changes = 0;
        m_world->displays.onChanged = [&] { ++changes; };
        {
            WindowProgram panel(u"panel"_s);
            QVERIFY(panel.tell(u"type DOCK"_s));
            QVERIFY(panel.tell(u"strut 0 0 40 0"_s));
            QTRY_COMPARE(area(), whole.adjusted(0, 40, 0, 0));
            QVERIFY(panel.tell(u"strut 60 0 0 0"_s));
            QTRY_COMPARE(area(), whole.adjusted(60, 0, 0, 0));
        }
        QTRY_COMPARE(area(), whole);
        QCOMPARE(changes, 3);
    }

    void displaysComeAndGo() {
        const auto xrandr = [](const QStringList& arguments) { return QProcess::execute(u"xrandr"_s, arguments) == 0; };
        const auto frames = [&] {
            QList<QRect> all;
            for (const auto& display : m_world->displays.all())
                all.append(display.frame);
            return all;
        };
        const auto before = frames();
        QVERIFY(xrandr({u"--setmonitor"_s, u"Left"_s, u"640/254x720/286+0+0"_s, u"screen"_s}));
        QTRY_COMPARE(frames(), QList<QRect>{QRect(0, 0, 640, 720)});
        QVERIFY(xrandr({u"--setmonitor"_s, u"Right"_s, u"320/127x720/286+640+0"_s, u"none"_s}));
        QTRY_COMPARE(frames(), (QList<QRect>{{0, 0, 640, 720}, {640, 0, 320, 720}}));
        QCOMPARE(m_world->displays.all().last().id, u"Right"_s);
        QVERIFY(m_world->displays.all().first().isMain && !m_world->displays.all().last().isMain);
        QVERIFY(xrandr({u"--delmonitor"_s, u"Right"_s}) && xrandr({u"--delmonitor"_s, u"Left"_s}));
        QTRY_COMPARE(frames(), before);
    }

    void pointerIsKeptOffEdges() {
        using Side = GuardedEdge::Side;
        const auto xdotool = [](const QString& arguments) {
            return QProcess::execute(u"xdotool"_s, arguments.split(u' ')) == 0;
        };
        const auto pointer = [&] {
            const auto root = m_world->connection->root();
            const auto at = m_world->connection->reply<xcb_query_pointer_reply>(
                xcb_query_pointer(m_world->connection->xcb(), root));
            return at ? QPoint(at->root_x, at->root_y) : QPoint();
        };
        X11PointerGuard guard(m_world->connection);
        QVERIFY(guard.isAvailable());
        guard.setEdges({{.side = Side::bottom, .line = 768, .from = 0, .to = 1024}});
        QVERIFY(xdotool(u"mousemove 500 767"_s));
        QVERIFY(guard.start());
        QTRY_COMPARE(pointer(), QPoint(500, 765)); // one that rests there already
        const QList<QPair<QString, QPoint>> byBarriers{
            {u"mousemove 500 700 mousemove_relative -- 100 900"_s, {600, 765}}, // stopped on its way
            {u"mousemove_relative -- -150 40"_s, {450, 765}},                   // and slides along
            {u"mousemove 5 760 mousemove_relative -- 0 90"_s, {5, 767}},        // corners are free,
            {u"mousemove_relative -- 400 0"_s, {24, 767}},                      // but lead nowhere else
            {u"mousemove 1010 760 mousemove_relative -- 0 90"_s, {1010, 767}},
            {u"mousemove_relative -- -400 0"_s, {1000, 767}},
            {u"mousemove_relative -- 0 -300"_s, {1000, 467}},
        };
        for (const auto& [motion, place] : byBarriers) {
            QVERIFY(xdotool(motion));
            QCOMPARE(pointer(), place);
        }
        // What puts the pointer past the barriers is set right with the next motion.
        for (const QString& press : {u"mouseup 3"_s, u"mousedown 3"_s}) { // the menu of the desktop holds the pointer
            QVERIFY(xdotool(u"mousemove 300 300 "_s + press + u" mousemove 400 767 mousemove_relative 9 0"_s));
            QTRY_COMPARE(pointer(), QPoint(409, 765));
            QVERIFY(xdotool(u"mousemove_relative -- 10 10"_s));
            QCOMPARE(pointer(), QPoint(419, 765));
        }
        QVERIFY(xdotool(u"mouseup 3 key Escape"_s));

        // Other edges take the place of these at once, for a pointer that rests too.
        QVERIFY(xdotool(u"mousemove 1 300"_s));
        guard.setEdges({{.side = Side::left, .line = 0, .from = 0, .to = 768},
                        {.side = Side::right, .line = 1024, .from = 0, .to = 768}});
        QTRY_COMPARE(pointer(), QPoint(3, 300));
        QVERIFY(xdotool(u"mousemove 20 400 mousemove_relative -- -90 0"_s));
        QCOMPARE(pointer(), QPoint(3, 400));
        QVERIFY(xdotool(u"mousemove_relative -- 5000 0"_s));
        QCOMPARE(pointer(), QPoint(1021, 400));
        QVERIFY(xdotool(u"mousemove 500 400 mousemove_relative -- 0 900"_s));
        QCOMPARE(pointer(), QPoint(500, 767));
        guard.stop();
        QVERIFY(!guard.isRunning());
        QVERIFY(xdotool(u"mousemove_relative -- -900 0"_s));
        QCOMPARE(pointer(), QPoint(0, 767));
    }

    void hotKeysReachUsWhateverIsInFront() {
        WindowProgram program(u"program"_s);
        QTRY_COMPARE(m_world->front(), program.pid());
        const auto press = [](const QString& keys) { return QProcess::execute(u"xdotool"_s, {u"key"_s, keys}) == 0; };
        X11HotKeys keys(m_world->connection);
        int presses = 0;
        auto held = keys.grab(HotKeys::option | HotKeys::shift, u"F"_s, [&] { ++presses; });
        QVERIFY(held);
        QVERIFY(!X11HotKeys(X11Connection::open(m_world->clock)).grab(HotKeys::option | HotKeys::shift, u"F"_s, [] {}));
        QVERIFY(!keys.grab(0, u"nothing"_s, [] {}));
        QVERIFY(press(u"alt+shift+f"_s));
        QTRY_COMPARE(presses, 1);
        for (const QString& lock : {u"Num_Lock"_s, u"Caps_Lock"_s}) {
            QVERIFY(press(lock));
            QVERIFY(press(u"alt+f"_s)); // another one
            QVERIFY(press(u"alt+shift+f"_s));
            QVERIFY(press(lock));
        }
        QTRY_COMPARE(presses, 3);

        // Labels move with the layout.
        int others = 0;
        auto other = keys.grab(HotKeys::command, u"Y"_s, [&] { ++others; });
        QVERIFY(other);
        QCOMPARE(QProcess::execute(u"setxkbmap"_s, {u"de"_s}), 0);
        QTRY_VERIFY(press(u"super+y"_s) && others > 0);
        QCOMPARE(QProcess::execute(u"setxkbmap"_s, {u"us"_s}), 0);

        held.reset();
        QVERIFY(X11HotKeys(X11Connection::open(m_world->clock)).grab(HotKeys::option | HotKeys::shift, u"F"_s, [] {}));
    }

private:
    std::unique_ptr<DesktopWorld> m_world;
};

QTEST_MAIN(tst_X11Display)
#include "tst_X11Display.moc"
