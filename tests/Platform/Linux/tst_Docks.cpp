#include "Platform/Linux/Desktop/XfconfFile.h"
#include "Platform/Linux/Docks/DockDrivers.h"
#include "Table.h"
#include "fakes/FakeClock.h"

#include <QDBusConnection>
#include <QJSEngine>

using namespace fendrel;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

using Values = QMap<QString, QString>; ///< by path and key

/// Settings with defaults, of which some are set.
class FakeConfiguration final : public DesktopConfiguration {
public:
    std::optional<QString> value(const ConfigurationKey& key) const override {
        if (!defaults.contains(key.key))
            return {};
        return set.value(key.path + key.key, defaults.value(key.key));
    }
    bool isSet(const ConfigurationKey& key) const override { return set.contains(key.path + key.key); }
    bool write(const ConfigurationKey& key, const QString& value) override {
        set.insert(key.path + key.key, value);
        return true;
    }
    bool reset(const ConfigurationKey& key) override {
        set.remove(key.path + key.key);
        return true;
    }
    bool flush(QDeadlineTimer /*deadline*/) override { return true; }
    Handle whenStored(std::function<void()> run) override {
        run();
        return {};
    }
    Handle watch(const ConfigurationKey& key, std::function<void()> run) override {
        watches.insert(key.path + key.key, run);
        return {};
    }

    Values defaults{
        {u"enabled-docks"_s, u"['dock1']"_s},
        {u"position"_s, u"'bottom'"_s},
        {u"hide-mode"_s, u"'intelligent'"_s},
        {u"unhide-delay"_s, u"0"_s},
        {u"pressure-reveal"_s, u"false"_s},
        {u"toplevel-id-list"_s, u"@as []"_s},
        {u"orientation"_s, u"'top'"_s},
        {u"auto-hide"_s, u"false"_s},
        {u"panels-enabled"_s, u"['1:0:bottom']"_s},
        {u"panels-autohide"_s, u"['1:false']"_s},
        {u"panels-show-delay"_s, u"['1:0']"_s},
        {u"enabled-extensions"_s, u"@as []"_s},
        {u"dock-position"_s, u"'BOTTOM'"_s},
        {u"dock-fixed"_s, u"false"_s},
        {u"manualhide"_s, u"false"_s},
        {u"show-delay"_s, u"0.25"_s},
    };
    Values set;
    QMap<QString, std::function<void()>> watches;
};

const QString dock1 = u"/net/launchpad/plank/docks/dock1/"_s;
const QString dock2 = u"/net/launchpad/plank/docks/dock2/"_s;
const QString lower = u"/org/mate/panel/toplevels/lower/"_s;
const QString upper = u"/org/mate/panel/toplevels/upper/"_s;
const Values matePanels{{u"toplevel-id-list"_s, u"['upper', 'lower']"_s}, {lower + u"orientation"_s, u"'bottom'"_s}};
const Values twoPlanks{{u"enabled-docks"_s, u"['dock1', 'dock2']"_s}};

Values operator+(Values values, const Values& more) {
    values.insert(more);
    return values;
}

/// What scripts find in the desktop's shell.
const QString shellOfPanels = uR"(
    var printed = '';
    function print(text) { printed += text + '\n'; }
    function panel(id, location, hiding) {
        var entries = {};
        return {
            id: id, location: location, currentConfigGroup: [],
            get hiding() { return hiding; },
            set hiding(value) {
                hiding = ['none', 'autohide', 'dodgewindows', 'windowscover'].includes(value) ? value : 'none';
            },
            place: function(key) { return this.currentConfigGroup.join('/') + '/' + key; },
            readConfig: function(key, fallback) { return this.place(key) in entries ? entries[this.place(key)] : fallback; },
            writeConfig: function(key, value) { entries[this.place(key)] = String(value); }
        };
    }
    var all = [panel(1, 'top', 'none'), panel(2, 'bottom', 'dodgewindows'), panel(3, 'left', 'none')];
    function panels() { return all; }
    function panelById(id) { return all.find(function(each) { return each.id === id; }); }
)"_s;

class FakeShell : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.PlasmaShell")

public:
    FakeShell() { run(shellOfPanels); }

    QString run(const QString& script) { return m_engine.evaluate(script).toString(); }
    /// How each panel hides, and what is noted there.
    QString panels() {
        return run(u"all.map(function(each) {"
                   "each.currentConfigGroup = ['Fendrel'];"
                   "return each.hiding + '/' + each.readConfig('hidden', '');"
                   "}).join(' ')"_s);
    }

    Q_SCRIPTABLE Q_SLOT QString evaluateScript(const QString& script) {
        run(u"printed = ''"_s);
        run(u"(function() {%1})()"_s.arg(script));
        return run(u"printed"_s);
    }

private:
    QJSEngine m_engine;
};

/// A dock that never answers.
class SilentDock final : public DockDriver {
public:
    QString dock() const override { return u"silent"_s; }
    QString name() const override { return dock(); }
    QString service() const override { return u"org.fendrel.Silent"_s; }
    void setRunning(bool /*isRunning*/) override {}
    Handle read(const QJsonObject& /*details*/, ReadDone /*done*/) override { return {}; }
    Handle change(const DockChanges& /*changes*/, ChangeDone /*done*/) override { return {}; }
};

struct World {
    explicit World(QString name) : dock(std::move(name)) {}

    SystemDockSettings read() {
        std::optional<SystemDockSettings> answer;
        const Handle asked = system.read(dock, [&](const auto& settings) { answer = settings; });
        return QTest::qWaitFor([&] { return answer.has_value(); }) ? *answer : SystemDockSettings();
    }
    bool write(SystemDockSettings settings) {
        std::optional<bool> answer;
        settings.dock = dock;
        const Handle asked = system.write(settings, [&](bool isWritten) { answer = isWritten; });
        return QTest::qWaitFor([&] { return answer.has_value(); }) && *answer;
    }
    bool isHidden() { return read().autohide == true && read().delay == 1000.0; }

    QString dock;
    std::shared_ptr<FakeConfiguration> configuration = std::make_shared<FakeConfiguration>();
    FakeClock clock;
    DesktopDock system{dockDrivers(configuration, clock)};
};

const SystemDockSettings hiding{.autohide = true, .delay = 1000.0};

} // namespace

class DocksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hiddenAndGivenBack_data() {
        const Table<QString, Values, Values, Values, Values> row("dock", "before", "hidden", "meanwhile", "after");
        const Values planksHidden{{dock1 + u"hide-mode"_s, u"'auto'"_s}, {dock1 + u"unhide-delay"_s, u"1000000"_s}};
        row("Plank", u"plank"_s, {}, planksHidden, {}, {});
        row("Plank, one's own", u"plank"_s,
            {{dock1 + u"hide-mode"_s, u"'none'"_s}, {dock1 + u"pressure-reveal"_s, u"true"_s}},
            planksHidden + Values{{dock1 + u"pressure-reveal"_s, u"false"_s}}, {},
            {{dock1 + u"hide-mode"_s, u"'none'"_s}, {dock1 + u"pressure-reveal"_s, u"true"_s}});
        row("Plank, set to its default", u"plank"_s, {{dock1 + u"unhide-delay"_s, u"0"_s}}, planksHidden, {},
            {{dock1 + u"unhide-delay"_s, u"0"_s}});
        row("Plank, hiding by itself", u"plank"_s, {{dock1 + u"hide-mode"_s, u"'auto'"_s}}, planksHidden, {},
            {{dock1 + u"hide-mode"_s, u"'auto'"_s}});
        row("Plank, changed meanwhile", u"plank"_s, {}, planksHidden, {{dock1 + u"hide-mode"_s, u"'none'"_s}},
            {{dock1 + u"hide-mode"_s, u"'none'"_s}});
        row("Plank, a dock less", u"plank"_s, twoPlanks,
            twoPlanks + planksHidden +
                Values{{dock2 + u"hide-mode"_s, u"'auto'"_s}, {dock2 + u"unhide-delay"_s, u"1000000"_s}},
            {{u"enabled-docks"_s, u"['dock1']"_s}}, {{u"enabled-docks"_s, u"['dock1']"_s}});
        row("Plank, a dock more", u"plank"_s, {}, planksHidden, twoPlanks, twoPlanks);
        row("MATE, but for the menu bar", u"mate-panel"_s, matePanels,
            matePanels + Values{{lower + u"auto-hide"_s, u"true"_s}, {lower + u"unhide-delay"_s, u"1000000"_s}}, {},
            matePanels);
        row("MATE, moved up meanwhile", u"mate-panel"_s, matePanels,
            matePanels + Values{{lower + u"auto-hide"_s, u"true"_s}, {lower + u"unhide-delay"_s, u"1000000"_s}},
            {{lower + u"orientation"_s, u"'top'"_s}}, matePanels + Values{{lower + u"orientation"_s, u"'top'"_s}});
        row("Cinnamon", u"cinnamon"_s, {},
            {{u"panels-autohide"_s, u"['1:true']"_s}, {u"panels-show-delay"_s, u"['1:1000000']"_s}}, {}, {});
        const Values cinnamons{{u"panels-enabled"_s, u"['1:0:top', '2:0:bottom', '3:1:left']"_s},
                               {u"panels-autohide"_s, u"['1:false', '2:intel', '3:false']"_s},
                               {u"panels-show-delay"_s, u"['1:0', '3:200']"_s}};
        const Values cinnamonsHidden{{u"panels-autohide"_s, u"['1:false', '2:true', '3:true']"_s},
                                     {u"panels-show-delay"_s, u"['1:0', '2:1000000', '3:1000000']"_s}};
        row("Cinnamon, one's own", u"cinnamon"_s, cinnamons, cinnamons + cinnamonsHidden, {}, cinnamons);
        row("Cinnamon, changed and added to meanwhile", u"cinnamon"_s, cinnamons, cinnamons + cinnamonsHidden,
            {{u"panels-autohide"_s, u"['1:true', '2:true', '3:false', '4:false']"_s}},
            cinnamons + Values{{u"panels-autohide"_s, u"['1:true', '2:intel', '3:false', '4:false']"_s}});
        row("Cinnamon, added to what was not set", u"cinnamon"_s, {},
            {{u"panels-autohide"_s, u"['1:true']"_s}, {u"panels-show-delay"_s, u"['1:1000000']"_s}},
            {{u"panels-autohide"_s, u"['1:true', '2:false']"_s}},
            {{u"panels-autohide"_s, u"['1:false', '2:false']"_s}});
        const Values gnome{{u"enabled-extensions"_s, u"['a@b', 'dash-to-dock@micxgx.gmail.com']"_s},
                           {u"dock-fixed"_s, u"true"_s}};
        row("GNOME", u"dash-to-dock"_s, gnome,
            gnome + Values{{u"dock-fixed"_s, u"false"_s}, {u"manualhide"_s, u"true"_s}, {u"show-delay"_s, u"1000.0"_s}},
            {}, gnome);
    }

    void hiddenAndGivenBack() {
        QFETCH(QString, dock);
        QFETCH(Values, before);
        QFETCH(Values, meanwhile);
        World world(dock);
        world.configuration->set = before;
        const SystemDockSettings saved = world.read();
        QVERIFY(!world.isHidden());
        QVERIFY(world.write(hiding));
        QVERIFY(world.isHidden());
        QTEST(world.configuration->set, "hidden");
        world.configuration->set.insert(meanwhile);
        QVERIFY(world.write(saved));
        QTEST(world.configuration->set, "after");
    }

    void ofPlasma() {
        FakeShell shell;
        auto bus = QDBusConnection::sessionBus();
        QVERIFY(bus.registerObject(u"/PlasmaShell"_s, &shell, QDBusConnection::ExportScriptableSlots));
        World world(u"plasma"_s);
        QVERIFY(bus.registerService(u"org.kde.plasmashell"_s));
        QVERIFY(QTest::qWaitFor([&] { return world.system.running() == u"plasma"_s; }));
        QCOMPARE(world.system.edges(), (QList<Qt::Edge>{Qt::BottomEdge, Qt::LeftEdge}));
        const SystemDockSettings saved = world.read();
        QVERIFY(world.write(hiding));
        QVERIFY(world.isHidden());
        QCOMPARE(shell.panels(), u"none/ autohide/true autohide/true"_s);
        shell.run(u"all[2].hiding = 'windowscover'"_s);
        QVERIFY(!world.isHidden());
        QVERIFY(world.write(saved));
        QCOMPARE(shell.panels(), u"none/ dodgewindows/ windowscover/"_s);
        QVERIFY(bus.unregisterService(u"org.kde.plasmashell"_s));
        QVERIFY(QTest::qWaitFor([&] { return !world.system.running(); }));
        QVERIFY(!world.write(saved));
    }

    void oneThatDoesNotAnswerHoldsUpNoOther() {
        FakeClock clock;
        auto drivers = dockDrivers(std::make_shared<FakeConfiguration>(), clock);
        drivers.insert(drivers.begin(), std::make_unique<SilentDock>());
        DesktopDock system(std::move(drivers));
        const Handle silent = system.read(u"silent"_s, [](const auto&) {});
        std::optional<bool> answer;
        const Handle asked = system.write({.dock = u"plank"_s}, [&](bool isWritten) { answer = isWritten; });
        QVERIFY(QTest::qWaitFor([&] { return answer == true; }));
    }

    void fileThatIsElsewhere() {
        FakeClock clock;
        XfconfFile file(u"nowhere"_s, {{u"/panels/panel-1/mode"_s, u"1"_s}}, clock, nullptr);
        int told = 0;
        file.onStored = [&] { ++told; };
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not in .*nowhere.xml"_s));
        clock.advance(60s);
        QCOMPARE(told, 1);
    }
};

QTEST_GUILESS_MAIN(DocksTest)
#include "tst_Docks.moc"
