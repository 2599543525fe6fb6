#include "Dock/DockEdgeGuard.h"
#include "Dock/DockEdges.h"
#include "Table.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeDisplays.h"
#include "fakes/FakePointerGuard.h"

#include <QtTest>

using namespace fendrel;
using namespace std::chrono_literals;
using Side = GuardedEdge::Side;

class DockEdgeGuardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void edges_data() {
        const Table<QList<QRect>, Qt::Edge, QList<QRectF>> row("frames", "side", "lines"); // line, from, to
        const QRect one{0, 0, 1920, 1080};
        row("bottom", {one}, Qt::BottomEdge, {{1080, 0, 1920, 0}});
        row("left", {one}, Qt::LeftEdge, {{0, 0, 1080, 0}});
        row("right", {one}, Qt::RightEdge, {{1920, 0, 1080, 0}});
        const QRect beside{1920, 200, 1280, 1024};
        row("side by side", {one, beside}, Qt::BottomEdge, {{1080, 0, 1920, 0}, {1224, 1920, 3200, 0}});
        row("adjoining at the left", {one, beside}, Qt::LeftEdge, {{0, 0, 1080, 0}});
        row("adjoining at the right", {one, beside}, Qt::RightEdge, {{3200, 200, 1224, 0}});
        row("stacked", {one, {300, 1080, 1280, 800}}, Qt::BottomEdge, {{1880, 300, 1580, 0}});
        row("stacked, not below the middle", {one, {1000, 1080, 1280, 800}}, Qt::BottomEdge,
            {{1080, 0, 1920, 0}, {1880, 1000, 2280, 0}});
    }
    void edges() {
        QFETCH(const QList<QRect>, frames);
        QFETCH(const Qt::Edge, side);
        QFETCH(const QList<QRectF>, lines);
        QList<fendrel::Display> displays;
        for (const QRect& frame : frames)
            displays.append({.frame = frame});
        QList<QRectF> found;
        for (const GuardedEdge& edge : guardedEdges(displays, side))
            found.append({edge.line, edge.from, edge.to, 0});
        QCOMPARE(found, lines);
    }

    void holds_data() {
        const Table<QPointF, QPointF> row("pointer", "goesTo");
        // A display at (100, 50) of 800 x 600, guarded on three sides.
        row("just before the margin", {500, 647}, {500, 647});
        row("in the margin", {500, 648}, {500, 647});
        row("on the line", {500, 650}, {500, 647});
        row("beyond, on another display", {500, 651}, {500, 651});
        row("first 24 pixels", {124, 649}, {124, 649});
        row("after them", {124.5, 649}, {124.5, 647});
        row("last 24 pixels", {876, 649}, {876, 649});
        row("left, on the line", {100, 300}, {103, 300});
        row("left, where it may be", {103, 300}, {103, 300});
        row("right", {899.5, 300}, {897, 300});
        row("right, at its upper end", {899, 74}, {899, 74});
    }
    void holds() {
        QFETCH(const QPointF, pointer);
        const QList<GuardedEdge> edges{{.side = Side::bottom, .line = 650, .from = 100, .to = 900},
                                       {.side = Side::left, .line = 100, .from = 50, .to = 650},
                                       {.side = Side::right, .line = 900, .from = 50, .to = 650}};
        QTEST(heldPoint(pointer, edges).value_or(pointer), "goesTo");
    }

    void asksAgainUntilItIsPermitted() {
        FakePointerGuard pointer;
        FakeDisplays displays;
        FakeClock clock;
        DockEdgeGuard guard(pointer, displays, clock);
        pointer.isPermitted = false;
        guard.setOn(true);
        clock.advance(7s);
        QCOMPARE(pointer.starts, 3);
        displays.displays.clear(); // the list cannot be had for a moment
        guard.updateEdges();
        QCOMPARE(pointer.edges.size(), 1);
        pointer.isPermitted = true;
        clock.advance(4s);
        QVERIFY(pointer.runs);
        clock.advance(1h);
        QCOMPARE(pointer.starts, 4);
        guard.setOn(false);
        QVERIFY(!pointer.runs);

        pointer.isPermitted = false;
        guard.setOn(true);
        guard.setOn(false);
        clock.advance(1h);
        QCOMPARE(pointer.starts, 5);
    }
};

QTEST_APPLESS_MAIN(DockEdgeGuardTest)
#include "tst_DockEdgeGuard.moc"
