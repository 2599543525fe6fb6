#include "App/ControllerWorld.h"
#include "App/HotKeyPlan.h"
#include "App/KeyCodes.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using Kind = HotKeyAction::Kind;

namespace {

const Shortcut optionF{.keyCode = 3, .modifiers = modifier::option, .key = u"F"_s};

/// What each combination does, and what lost its own: "2048+1 mode 1", "lost: focus".
QStringList text(const HotKeyPlan& plan) {
    const auto name = [](const HotKeyAction& action) {
        switch (action.kind) {
        case Kind::switchMode:
            return u"mode %1"_s.arg(action.index + 1);
        case Kind::toggleFocus:
            return u"focus"_s;
        case Kind::focusDock:
            return u"dock"_s;
        case Kind::openApp:
            return u"app %1"_s.arg(action.index + 1);
        }
        return QString();
    };
    QStringList lines;
    for (const HotKey& hotKey : plan.keys)
        lines.append(u"%1+%2 %3"_s.arg(hotKey.modifiers).arg(hotKey.key, name(hotKey.action)));
    for (const auto& clash : plan.clashes)
        lines.append(u"%1 lost to %2"_s.arg(name(clash.action), name(clash.winner)));
    return lines;
}

} // namespace

class HotKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void plans_data() {
        const Table<HotKeyWishes, QStringList> row("wishes", "plan");
        row("as many as there are",
            {.focus = optionF, .modeModifiers = 2048, .appModifiers = 4096, .modes = 2, .apps = 1},
            {u"2048+1 mode 1"_s, u"2048+2 mode 2"_s, u"2048+F focus"_s, u"4096+1 app 1"_s});
        row("off", {.modeModifiers = 0, .appModifiers = 0, .modes = 3, .apps = 3}, {});
        row("modes win over applications", {.modeModifiers = 2048, .appModifiers = 2048, .modes = 1, .apps = 5},
            {u"2048+1 mode 1"_s});
        row("a digit of another's",
            {.focus = Shortcut{.modifiers = 2048, .key = u"1"_s},
             .dock = Shortcut{.modifiers = 4096, .key = u"2"_s},
             .modeModifiers = 2048,
             .appModifiers = 4096,
             .modes = 1,
             .apps = 2},
            {u"2048+1 mode 1"_s, u"4096+2 dock"_s, u"4096+1 app 1"_s, u"focus lost to mode 1"_s,
             u"app 2 lost to dock"_s});
        row("only modes that exist take digits",
            {.focus = Shortcut{.modifiers = 2048, .key = u"4"_s}, .modeModifiers = 2048, .modes = 1},
            {u"2048+1 mode 1"_s, u"2048+4 focus"_s});
        row("one key for two, in other letters", {.focus = optionF, .dock = Shortcut{.modifiers = 2048, .key = u"f"_s}},
            {u"2048+F focus"_s, u"dock lost to focus"_s});
        row("what people type", {.focus = Shortcut{.modifiers = modifier::shift, .key = u"F"_s}}, {});
        row("what people type with digits", {.modeModifiers = modifier::shift, .modes = 2}, {});
        row("a function key alone", {.focus = Shortcut{.key = u"F12"_s}}, {u"0+F12 focus"_s});
    }
    void plans() {
        QFETCH(HotKeyWishes, wishes);
        QTEST(text(hotKeyPlan(wishes)), "plan");
    }

    void noMoreThanNine() {
        const HotKeyPlan plan = hotKeyPlan({.modeModifiers = 2048, .modes = 12});
        QCOMPARE(plan.keys.size(), 9);
        QCOMPARE(plan.keys.last().key, u"9"_s);
    }

    void takesOnlyTheDifference() {
        FakeHotKeys keyboard;
        HotKeyRegistry registry(keyboard);
        registry.apply(hotKeyPlan({.focus = optionF, .modeModifiers = 2048, .modes = 2}));
        QCOMPARE(keyboard.grabs, 3);
        registry.apply(hotKeyPlan({.focus = optionF, .modeModifiers = 2048, .modes = 3}));
        QCOMPARE(keyboard.grabs, 4);
        registry.apply(hotKeyPlan({.modeModifiers = 2048, .modes = 1}));
        QCOMPARE(keyboard.grabs, 4);
        QCOMPARE(keyboard.held.size(), 1U);
        // A combination that changes hands is free before it is taken again.
        registry.apply(hotKeyPlan({.focus = Shortcut{.modifiers = 2048, .key = u"1"_s}}));
        QVERIFY(registry.refused().isEmpty());
    }

    void othersKeepTheirs() {
        FakeHotKeys keyboard;
        keyboard.others = {u"2048+F"_s, u"2048+2"_s};
        HotKeyRegistry registry(keyboard);
        const QSignalSpy changed(&registry, &HotKeyRegistry::changed);
        registry.apply(hotKeyPlan({.focus = optionF, .modeModifiers = 2048, .modes = 2}));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(registry.refused().size(), 2);
        QVERIFY(registry.works({Kind::switchMode, 0}));
        QVERIFY(!registry.works({Kind::switchMode, 1}));
        QVERIFY(!registry.works({Kind::toggleFocus}));

        keyboard.others.clear(); // their program ended
        registry.retry();
        QCOMPARE(changed.size(), 2);
        QVERIFY(registry.refused().isEmpty());
        QVERIFY(registry.works({Kind::toggleFocus}));
    }

    void allAreFreeWhileOneIsChosen() {
        FakeHotKeys keyboard;
        HotKeyRegistry registry(keyboard);
        registry.apply(hotKeyPlan({.focus = optionF}));
        Handle first = registry.pause();
        Handle second = registry.pause();
        QVERIFY(keyboard.held.empty());
        registry.apply(hotKeyPlan({.focus = Shortcut{.modifiers = 4096, .key = u"J"_s}}));
        first.reset();
        QVERIFY(keyboard.held.empty());
        second.reset();
        QVERIFY(keyboard.press(u"4096+J"_s));
        QVERIFY(!keyboard.press(u"2048+F"_s));
    }

    void doWhatTheySay() {
        ControllerWorld world;
        AppController& controller = world.launch();
        FakeHotKeys& keyboard = *world.fake.hotKeys;
        QVERIFY(keyboard.press(u"2048+2"_s));
        QCOMPARE(controller.engine().current().id, u"building"_s);
        QVERIFY(keyboard.press(u"2048+F"_s));
        QVERIFY(controller.focus().isOn());
        QVERIFY(keyboard.press(u"2048+3"_s)); // which takes 15 s
        QVERIFY(controller.engine().pending());
        QCOMPARE(controller.engine().pending()->target.id, u"social"_s);
        QVERIFY(keyboard.press(u"2048+2"_s));
        QVERIFY(!controller.engine().pending());

        QVERIFY(keyboard.press(u"2048+F"_s));
        QVERIFY(!controller.focus().isOn());

        QList<int> opened;
        controller.onOpenDockApp = [&](int index) { opened.append(index); };
        controller.dockAppsChanged(2);
        QVERIFY(!keyboard.press(u"4096+2"_s));
        controller.preferences().setAppModifiers(modifier::control);
        QVERIFY(keyboard.press(u"4096+2"_s));
        QVERIFY(!keyboard.press(u"4096+3"_s));
        QCOMPARE(opened, QList<int>{1});

        controller.engine().deleteMode(u"social"_s);
        QVERIFY(!keyboard.press(u"2048+%1"_s.arg(controller.engine().modes().size() + 1)));
    }

    void soundsOnlyWhereTheyAreWanted() {
        ControllerWorld world;
        AppController& controller = world.launch();
        const auto act = [&] {
            world.commit(controller.engine().current().id == u"writing" ? u"building"_s : u"writing"_s);
            controller.focus().start();
            controller.focus().stop();
            controller.messages().onShow();
            return std::exchange(world.fake.sounds->played, {});
        };
        QCOMPARE(act(), QList<Sound>());
        controller.preferences().setSounds(true);
        QCOMPARE(act(),
                 (QList<Sound>{Sound::modeSwitch, Sound::focusStart, Sound::focusStop, Sound::messageLetThrough}));
    }

    void storesTheCodesOfAStandardKeyboard() {
        QCOMPARE(keyCode(u"f"_s), 3);
        QCOMPARE(keyCode(u"F3"_s), 99);
        QCOMPARE(keyCode(u"Page Up"_s), 116);
        QCOMPARE(keyCode(u"Ö"_s), -1);
    }
};

QTEST_GUILESS_MAIN(HotKeysTest)
#include "tst_HotKeys.moc"
