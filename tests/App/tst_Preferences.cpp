#include "App/Preferences.h"
#include "Table.h"
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

namespace {

struct World {
    FakeSettings settings;
    FakeLook look;
    std::optional<Preferences> preferences;

    explicit World(const QHash<QString, StoredValue>& values = {}) {
        settings.values = values;
        start();
    }
    Preferences& start() { return preferences.emplace(settings, look); }
};

} // namespace

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsWhatIsStored_data() {
        const Table<QByteArray, Stored, QByteArray> table("name", "stored", "expected");
        const auto row = [&](const char* name, const char* form, const std::optional<StoredValue>& stored,
                             const char* expected) { table(QByteArray(name) + ": " + form, name, {stored}, expected); };
        row("dockSize", "missing", {}, "medium");
        row("dockSize", "known", u"large"_s, "large");
        row("dockSize", "unknown", u"huge"_s, "medium");
        row("dockPosition", "missing", {}, "bottom");
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
        row("appModifiers", "a fraction", 512.0, "0");
        row("breakThrough", "missing", {}, "urgent, asap");
        row("breakThrough", "data", QByteArray("now"), "urgent, asap");
    }

    void readsWhatIsStored() {
        QFETCH(const QByteArray, name);
        QFETCH(const Stored, stored);
        World world;
        if (stored.value)
            world.settings.values.insert(name == "matchSystem" ? u"matchSystemAppearance"_s : QString::fromLatin1(name),
                                         *stored.value);
        const Preferences& preferences = world.start();
        const QMetaObject* meta = preferences.metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty(name.constData()));
        QByteArray shown = property.read(&preferences).toByteArray();
        if (property.isEnumType())
            shown = property.enumerator().valueToKey(property.read(&preferences).toInt());
        QTEST(shown, "expected");
        QCOMPARE(world.settings.writes, 0);
    }

    void readsTheFocusShortcut_data() {
        const Table<QString> row("label"); // empty: the hot key is off
        row(R"({"keyCode":0,"modifiers":6912,"key":"A"})", u"⌃⌥⇧⌘A"_s);
        row(R"({"key":"F5","modifiers":0,"keyCode":96,"more":1})", u"F5"_s);
        for (const char* off :
             {"null", "{", "", R"([3,2048,"F"])", R"({"keyCode":3,"modifiers":2048})",
              R"({"keyCode":"3","modifiers":2048,"key":"F"})", R"({"keyCode":3.5,"modifiers":2048,"key":"F"})",
              R"({"keyCode":3,"modifiers":1e12,"key":"F"})"})
            row(off, {});
    }

    void readsTheFocusShortcut() {
        World world({{u"focusShortcut"_s, QByteArray(QTest::currentDataTag())}});
        const auto shortcut = world.preferences->focusShortcut();
        QTEST(shortcut ? shortcut->label() : QString(), "label");
    }

    void storesWhatIsChosen() {
        World world;
        const QSignalSpy changes(&*world.preferences, &Preferences::changed);
        world.preferences->setDockSize(DockSize::medium); // the default in force, chosen now
        QCOMPARE(world.settings.read<QString>(u"dockSize"_s), u"medium"_s);
        QCOMPARE(changes.count(), 0);
        QCOMPARE(world.preferences->focusShortcut()->label(), u"⌥F"_s);
        world.preferences->setFocusShortcut({});
        QCOMPARE(changes.count(), 1);
        QVERIFY(!world.start().focusShortcut()); // stays off
        world.settings.remove(u"focusShortcut"_s);
        QCOMPARE(world.start().focusShortcut()->label(), u"⌥F"_s);
    }

    void theModesWinAClashOfShortcuts() {
        World world;
        const auto labels = [&](int modes, int apps, int index) {
            world.preferences->setModeModifiers(modes);
            world.preferences->setAppModifiers(apps);
            return world.preferences->modeShortcut(index).value_or(u"-"_s) +
                   world.preferences->appShortcut(index).value_or(u"-"_s);
        };
        QCOMPARE(labels(2048, 256 + 4096, 8), u"⌥9⌃⌘9"_s);
        QCOMPARE(labels(2048, 256, 9), u"--"_s); // there are nine digits
        QCOMPARE(labels(2048, 2048, 0), u"⌥1-"_s);
    }

    void choosesTheLook() {
        World world({{u"dockAppearance"_s, QByteArray(R"({"opacity":"much"})")}, {u"dockAppearanceDark"_s, u"{}"_s}});
        Preferences& preferences = *world.preferences;
        QCOMPARE(preferences.lightAppearance(), DockAppearance()); // neither of the two can be read
        QCOMPARE(preferences.darkAppearance(), DockAppearance::preset(u"Midnight"_s));
        const auto showsDark = [&](bool isMatching, std::optional<bool> editing, bool isSystemDark) {
            preferences.setMatchSystem(isMatching);
            preferences.setEditingDark(editing);
            world.look.setDark(isSystemDark);
            return preferences.showsDark() && preferences.appearance().isDark;
        };
        QVERIFY(!showsDark(false, true, true)); // never without matching
        QVERIFY(showsDark(true, {}, true));
        QVERIFY(!showsDark(true, {}, false));
        QVERIFY(!showsDark(true, false, true)); // what is edited is what shows
        QVERIFY(showsDark(true, true, false));
        const DockAppearance chosen{.background = u"#123456"_s, .isDark = true};
        preferences.setAppearance(chosen);
        QCOMPARE(world.start().darkAppearance(), chosen);
        QCOMPARE(world.start().lightAppearance(), DockAppearance());
    }
};

QTEST_APPLESS_MAIN(PreferencesTest)
#include "tst_Preferences.moc"
