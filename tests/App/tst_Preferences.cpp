#include "App/Preferences.h"
#include "fakes/FakeLook.h"
#include "fakes/FakeSettings.h"

#include <QMetaProperty>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

/// Bare, the variant trips over Qt's search for a less-than operator.
struct Stored {
    std::optional<StoredValue> value{};
};

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsWhatIsStored_data();
    void readsWhatIsStored();
    void readsTheFocusShortcut_data();
    void readsTheFocusShortcut();
    void storesWhatIsChosen();
    void labelsDigitShortcuts();
    void choosesTheLook_data();
    void choosesTheLook();
};

namespace {

struct World {
    FakeSettings settings;
    FakeLook look;
    Preferences preferences{settings, look};
};

} // namespace

void PreferencesTest::readsWhatIsStored_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<Stored>("stored");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* form, const std::optional<StoredValue>& stored,
                        const char* expected) {
        const QString property = QString::fromLatin1(name);
        const QString key = property == "matchSystem"_L1 ? u"matchSystemAppearance"_s : property;
        QTest::addRow("%s: %s", name, form)
            << property << key << Stored{stored} << QString::fromLatin1(expected);
    };
    row("dockSize", "missing", {}, "medium");
    row("dockSize", "known", u"large"_s, "large");
    row("dockSize", "unknown", u"huge"_s, "medium");
    row("dockSize", "other case", u"Large"_s, "medium");
    row("dockPosition", "missing", {}, "bottom");
    row("dockPosition", "unknown", u"top"_s, "bottom");
    row("dockDisplay", "missing", {}, "main");
    row("strictness", "missing", {}, "balanced");
    row("strictness", "with its type", u"Strictness::strict"_s, "balanced");
    for (const char* name :
         {"autoHide", "focusGlow", "sounds", "clickToHide", "tidyOnSwitch", "crashReports", "matchSystem"}) {
        row(name, "missing", {}, "false");
        row(name, "a number", qint64{1}, "true");
        row(name, "text", u"true"_s, "false");
    }
    for (const char* name : {"magnify", "claudePings"}) {
        row(name, "missing", {}, "true");
        row(name, "off", false, "false");
        row(name, "text", u"no"_s, "true");
        row(name, "a number", qint64{0}, "true");
    }
    row("modeModifiers", "missing", {}, "2048");
    row("modeModifiers", "off", qint64{0}, "0");
    row("modeModifiers", "text", u"256"_s, "2048");
    row("modeModifiers", "a boolean", true, "2048");
    row("appModifiers", "missing", {}, "0");
    row("appModifiers", "a fraction", 512.0, "0");
    row("breakThrough", "missing", {}, "urgent, asap");
    row("breakThrough", "empty", QString(u""_s), "");
    row("breakThrough", "data", QByteArray("now"), "urgent, asap");
}

void PreferencesTest::readsWhatIsStored() {
    QFETCH(const QString, name);
    QFETCH(const QString, key);
    QFETCH(const Stored, stored);
    FakeSettings settings;
    FakeLook look;
    if (stored.value)
        settings.values.insert(key, *stored.value);
    const Preferences preferences(settings, look);
    const QMetaObject* meta = preferences.metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name.toLatin1().constData()));
    QString shown = property.read(&preferences).toString();
    if (property.isEnumType())
        shown = QString::fromLatin1(property.enumerator().valueToKey(property.read(&preferences).toInt()));
    QTEST(shown, "expected");
    QCOMPARE(settings.writes, 0);
}

void PreferencesTest::readsTheFocusShortcut_data() {
    QTest::addColumn<QString>("label"); // empty: the hot key is off
    QTest::newRow(R"({"keyCode":0,"modifiers":6912,"key":"A"})") << u"⌃⌥⇧⌘A"_s;
    QTest::newRow(R"({"key":"F5","modifiers":0,"keyCode":96,"more":1})") << u"F5"_s;
    for (const char* off :
         {"null", "{", "", R"([3,2048,"F"])", R"({"keyCode":3,"modifiers":2048})",
          R"({"keyCode":"3","modifiers":2048,"key":"F"})", R"({"keyCode":3.5,"modifiers":2048,"key":"F"})",
          R"({"keyCode":3,"modifiers":1e12,"key":"F"})"})
        QTest::newRow(off) << QString();
}

void PreferencesTest::readsTheFocusShortcut() {
    FakeSettings settings;
    FakeLook look;
    settings.values.insert(u"focusShortcut"_s, QByteArray(QTest::currentDataTag()));
    const auto shortcut = Preferences(settings, look).focusShortcut();
    QTEST(shortcut ? shortcut->label() : QString(), "label");
}

void PreferencesTest::storesWhatIsChosen() {
    World world;
    const QSignalSpy changes(&world.preferences, &Preferences::changed);
    world.preferences.setDockSize(DockSize::medium); // the default in force, chosen now
    QCOMPARE(world.settings.read<QString>(u"dockSize"_s), u"medium"_s);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(world.preferences.focusShortcut()->label(), u"⌥F"_s);
    world.preferences.setFocusShortcut({});
    QCOMPARE(changes.count(), 1);
    QVERIFY(!Preferences(world.settings, world.look).focusShortcut()); // stays off
    world.settings.remove(u"focusShortcut"_s);
    QCOMPARE(Preferences(world.settings, world.look).focusShortcut()->label(), u"⌥F"_s);
}

void PreferencesTest::labelsDigitShortcuts() {
    World world;
    const auto labels = [&](int modes, int apps, int index) {
        world.preferences.setModeModifiers(modes);
        world.preferences.setAppModifiers(apps);
        return world.preferences.modeShortcut(index).value_or(u"-"_s) +
               world.preferences.appShortcut(index).value_or(u"-"_s);
    };
    QCOMPARE(labels(2048, 0, 0), u"⌥1-"_s);
    QCOMPARE(labels(2048, 256, 8), u"⌥9⌘9"_s);
    QCOMPARE(labels(2048, 256, 9), u"--"_s);
    QCOMPARE(labels(2048, 256, -1), u"--"_s);
    QCOMPARE(labels(2048, 2048, 0), u"⌥1-"_s); // the modes win a clash
    QCOMPARE(labels(0, 512, 3), u"-⇧4"_s);
    QCOMPARE(labels(256 + 512 + 2048 + 4096, 256 + 4096, 1), u"⌃⌥⇧⌘2⌃⌘2"_s);
}

void PreferencesTest::choosesTheLook_data() {
    using Editing = std::optional<bool>;
    QTest::addColumn<bool>("matches");
    QTest::addColumn<Editing>("editing");
    QTest::addColumn<bool>("isSystemDark");
    QTest::addColumn<bool>("showsDark");
    QTest::newRow("never dark without matching") << false << Editing(true) << true << false;
    QTest::newRow("dark system") << true << Editing() << true << true;
    QTest::newRow("light system") << true << Editing() << false << false;
    QTest::newRow("editing light on a dark system") << true << Editing(false) << true << false;
    QTest::newRow("editing dark on a light system") << true << Editing(true) << false << true;
}

void PreferencesTest::choosesTheLook() {
    QFETCH(const bool, matches);
    QFETCH(const std::optional<bool>, editing);
    QFETCH(const bool, isSystemDark);
    QFETCH(const bool, showsDark);
    World world;
    auto& [settings, look, preferences] = world;
    settings.values = {{u"dockAppearance"_s, QByteArray(R"({"opacity":"much"})")},
                       {u"dockAppearanceDark"_s, u"{}"_s}};
    FakeLook otherLook;
    const Preferences unreadable(settings, otherLook);
    QCOMPARE(unreadable.lightAppearance(), DockAppearance());
    QCOMPARE(unreadable.darkAppearance(), DockAppearance::preset(u"Midnight"_s));
    preferences.setMatchSystem(matches);
    preferences.setEditingDark(editing);
    look.setDark(isSystemDark);
    QCOMPARE(preferences.showsDark(), showsDark);
    QCOMPARE(preferences.appearance().isDark, showsDark);

    const DockAppearance chosen{.background = u"#123456"_s, .isDark = true};
    preferences.setAppearance(chosen);
    QCOMPARE(preferences.appearance(), chosen);
    const Preferences again(settings, look);
    QCOMPARE(again.darkAppearance() == chosen, showsDark);
    QCOMPARE(again.lightAppearance() == chosen, !showsDark);
}

QTEST_APPLESS_MAIN(PreferencesTest)
#include "tst_Preferences.moc"
