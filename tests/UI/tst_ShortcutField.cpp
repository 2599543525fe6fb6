#include "App/ControllerWorld.h"
#include "UI/Interface.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

constexpr quint32 letterKey = 44;
const Qt::KeyboardModifiers none;

QQuickItem* find(QQuickItem* from, const QString& setting) {
    if (from->property("setting") == setting && from->property("isRecording").isValid())
        return from;
    for (QQuickItem* child : from->childItems()) {
        if (QQuickItem* inside = find(child, setting))
            return inside;
    }
    return nullptr;
}

/// The field of a hot key in the settings, and a keyboard.
struct Field {
    explicit Field(const QString& setting) {
        world.fake.hotKeys->labels = {{letterKey, u"J"_s}};
        controller = &world.controller.emplace(world.fake.platform);
        interface.emplace(*controller);
        controller->launch(u"general"_s);
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            auto* candidate = qobject_cast<QQuickView*>(window);
            if (candidate && candidate->isVisible() && (item = find(candidate->rootObject(), setting)))
                view = candidate;
        }
        isShown = view && QTest::qWaitForWindowExposed(view);
        if (isShown)
            item->forceActiveFocus();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = none, quint32 scanCode = 0) const {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, scanCode, 0, 0);
        QCoreApplication::sendEvent(view, &press);
    }
    bool isRecording() const { return item->property("isRecording").toBool(); }
    QString keys() const {
        const auto& shortcut = controller->preferences().focusShortcut();
        return shortcut ? shortcut->label() : QString();
    }
    QStringList shown() const { return item->property("current").toMap().value(u"caps"_s).toStringList(); }

    ControllerWorld world;
    AppController* controller{};
    std::optional<Interface> interface;
    QQuickItem* item{};
    QQuickView* view{};
    bool isShown{};
};

} // namespace

class ShortcutFieldTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void recordsWhatIsPressed() {
        const Field field(u"focusShortcut"_s);
        QVERIFY(field.isShown);
        FakeHotKeys& keyboard = *field.world.fake.hotKeys;
        QCOMPARE(field.shown(), (QStringList{u"⌥"_s, u"F"_s}));
        QVERIFY(keyboard.held.contains(u"2048+F"_s));
        field.press(Qt::Key_Return);
        QVERIFY(field.isRecording());
        QVERIFY(keyboard.held.empty()); // so that they can be chosen

        field.press(Qt::Key_J, none, letterKey); // which people type
        QVERIFY(field.isRecording());
        field.press(Qt::Key_Control);
        QCOMPARE(field.item->property("heldCaps").toStringList(), QStringList{u"⌃"_s});
        field.press(Qt::Key_J, Qt::ControlModifier | Qt::ShiftModifier, letterKey);
        QVERIFY(!field.isRecording());
        QCOMPARE(field.keys(), u"⌃⇧J"_s);
        QCOMPARE(field.controller->preferences().focusShortcut()->keyCode, 38);
        QCOMPARE(field.shown(), (QStringList{u"⌃"_s, u"⇧"_s, u"J"_s}));
        QVERIFY(keyboard.held.contains(u"4608+J"_s));
    }

    void canBeLeftAndCleared() {
        const Field field(u"focusShortcut"_s);
        field.press(Qt::Key_Return);
        field.press(Qt::Key_Escape);
        QVERIFY(!field.isRecording());
        QCOMPARE(field.keys(), u"⌥F"_s);
        field.press(Qt::Key_Return);
        field.view->rootObject()->forceActiveFocus(); // elsewhere in the window
        field.item->setFocus(false);
        QVERIFY(!field.isRecording());
        QVERIFY(field.world.fake.hotKeys->held.contains(u"2048+F"_s));

        field.item->forceActiveFocus();
        field.press(Qt::Key_Return);
        field.press(Qt::Key_Backspace);
        QCOMPARE(field.keys(), QString());
        QVERIFY(!field.isRecording());
    }

    void tellsWhatIsInTheWay() {
        Field field(u"focusShortcut"_s);
        Preferences& preferences = field.controller->preferences();
        const auto problem = [&] { return field.item->property("current").toMap().value(u"problem"_s).toString(); };
        QCOMPARE(problem(), QString());
        preferences.setFocusShortcut(Shortcut{.keyCode = 19, .modifiers = modifier::option, .key = u"2"_s});
        QCOMPARE(problem(), u"This combination switches to mode 2."_s);
        field.world.fake.hotKeys->others = {u"4096+J"_s};
        preferences.setFocusShortcut(Shortcut{.keyCode = 38, .modifiers = modifier::control, .key = u"J"_s});
        QCOMPARE(problem(), u"Taken by another program, or not on this keyboard: ⌃J."_s);
    }
};

QTEST_MAIN(ShortcutFieldTest)
#include "tst_ShortcutField.moc"
