#include "Base/Worker.h"
#include "Dock/DockEdits.h"
#include "Dock/DockUndo.h"
#include "Modes/ModeEngine.h"
#include "Modes/ModeStore.h"
#include "Table.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct World {
    Worker disk{u"disk"_s};
    ModeStore store{{}, disk};
    FakeSettings settings;
    FakeClock clock;
    std::optional<ModeEngine> engine;
    DockUndo undo{clock};
    std::optional<DockEdits> edits;

    World() {
        for (const char* flag : {"sitesSeeded", "widgetsSeeded", "budgetsSeeded"})
            settings.values.insert(QString::fromLatin1(flag), true);
        store.load();
        store.save({{.id = u"a"_s,
                     .name = u"Writing"_s,
                     .tint = Tint::amber,
                     .apps = {u"x"_s, u"y"_s, u"z"_s},
                     .widgets = {u"p"_s, u"q"_s, u"r"_s}},
                    {.id = u"b"_s, .name = u"Social"_s, .tint = Tint::teal, .apps = {u"z"_s}}});
        engine.emplace(store, settings, clock, ModeCatalog::with({}), [](const QString&) { return true; });
        const auto name = [](const QString& id) { return id.toUpper(); };
        edits.emplace(*engine, undo, name, name);
    }
    QString apps() const {
        return engine->mode(u"a"_s)->apps.join(u' ') + u'|' + engine->mode(u"b"_s)->apps.join(u' ');
    }
    QString widgets() const { return engine->mode(u"a"_s)->widgets.join(u' '); }
    QString offer() const { return undo.offer() ? undo.offer()->text : QString(); }
};

} // namespace

class DockEditsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersToTakeBack_data() {
        const Table<QByteArray, QString, QString> row("edit", "apps", "offer");
        row("add", "add x b", u"x y z|z x"_s, u"Added X to Social"_s);
        row("move", "move x a b", u"y z|z x"_s, u"Moved X to Social"_s);
        row("move to where it is already", "move z a b", u"x y|z"_s, u"Moved Z to Social"_s);
        row("remove", "remove y a", u"x z|z"_s, u"Removed Y from Writing"_s);
        row("add what is there", "add z b", u"x y z|z"_s, u""_s);
        row("a mode that is gone", "add x c", u"x y z|z"_s, u""_s);
    }
    void offersToTakeBack() {
        QFETCH(const QByteArray, edit);
        World world;
        const QStringList words = QString::fromLatin1(edit).split(u' ');
        if (words[0] == "add"_L1)
            world.edits->add(words[1], words[2]);
        else if (words[0] == "move"_L1)
            world.edits->move(words[1], words[2], words[3]);
        else
            world.edits->remove(words[1], words[2]);
        QTEST(world.apps(), "apps");
        QTEST(world.offer(), "offer");
        world.undo.runUndo();
        QCOMPARE(world.apps(), u"x y z|z"_s);
        QVERIFY(!world.undo.offer());
    }

    void takesBackInTheModeAsItIs() {
        World world;
        world.edits->remove(u"y"_s, u"a"_s);
        world.engine->removeApp(u"z"_s, u"a"_s); // its neighbour
        world.undo.runUndo();
        QCOMPARE(world.apps(), u"x y|z"_s);
    }

    void takesWidgetsBack_data() {
        const Table<QByteArray, QByteArray, QString, QString> row("edit", "meanwhile", "widgets", "after");
        row("added", "add s", "", u"p q r s"_s, u"p q r"_s);
        row("removed", "remove q", "", u"p r"_s, u"p q r"_s);
        row("removed, and its neighbour too", "remove q", "r", u"p r"_s, u"p q"_s);
        row("removed, and back already", "remove q", "+q", u"p r"_s, u"p r q"_s);
        row("the last", "remove r", "", u"p q"_s, u"p q r"_s);
    }
    void takesWidgetsBack() {
        QFETCH(const QByteArray, edit);
        QFETCH(const QByteArray, meanwhile);
        World world;
        const QString id = QString::fromLatin1(edit.last(1));
        edit.startsWith("add") ? world.edits->addWidget(id, u"a"_s) : world.edits->removeWidget(id, u"a"_s);
        QTEST(world.widgets(), "widgets");
        Mode mode = *world.engine->mode(u"a"_s);
        if (meanwhile.startsWith('+'))
            mode.widgets.append(QString::fromLatin1(meanwhile.mid(1)));
        else
            mode.widgets.removeAll(QString::fromLatin1(meanwhile));
        world.engine->update(mode);
        world.undo.runUndo();
        QTEST(world.widgets(), "after");
    }

    void arrangesWidgetsAroundOthers_data() {
        const Table<QString, QString> row("order", "widgets");
        row("around one that has no card", u"r p"_s, u"r q p"_s);
        row("with one that is gone", u"q x p"_s, u"q p r"_s);
    }
    void arrangesWidgetsAroundOthers() {
        QFETCH(const QString, order);
        World world;
        world.edits->arrangeWidgets(order.split(u' '), u"a"_s);
        QTEST(world.widgets(), "widgets");
    }

    void goesByItself() {
        World world;
        world.edits->add(u"x"_s, u"b"_s);
        world.clock.advance(5s);
        world.edits->add(u"y"_s, u"b"_s);
        world.clock.advance(5s);
        QCOMPARE(world.offer(), u"Added Y to Social"_s); // six seconds of its own
        world.undo.setHovered(true);
        world.clock.advance(20s);
        QVERIFY(world.undo.offer());
        world.undo.setHovered(false);
        world.clock.advance(5s);
        QVERIFY(world.undo.offer());
        world.clock.advance(1s);
        QVERIFY(!world.undo.offer());
        world.undo.runUndo();
        QCOMPARE(world.apps(), u"x y z|z x y"_s);
    }
};

QTEST_GUILESS_MAIN(DockEditsTest)
#include "tst_DockEdits.moc"
