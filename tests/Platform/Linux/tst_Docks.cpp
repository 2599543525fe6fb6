#include "Platform/Linux/Docks/DockDrivers.h"
#include "Table.h"

#include <QDBusConnection>
#include <QJsonArray>
#include <QJsonDocument>

using namespace fendrel;
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

/// A desktop shell that knows the scripts of its panels by what they do.
class FakeShell : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.PlasmaShell")

public:
    QJsonObject hiding{{u"1"_s, u"none"_s}, {u"2"_s, u"dodgewindows"_s}, {u"3"_s, u"none"_s}};
    QJsonObject marks{};

    Q_SCRIPTABLE Q_SLOT QString evaluateScript(const QString& script);
};

QString FakeShell::evaluateScript(const QString& script) {
    const qsizetype start = script.indexOf(u"var changes = "_s);
    if (start < 0) {
        const QMap<QString, QString> places{{u"1"_s, u"top"_s}, {u"2"_s, u"bottom"_s}, {u"3"_s, u"left"_s}};
        QJsonArray panels;
        for (const QString& id : hiding.keys())
            panels.append(QJsonObject{{u"id"_s, id},
                                      {u"location"_s, places.value(id)},
                                      {u"hiding"_s, hiding.value(id)},
                                      {u"mark"_s, marks.value(id).toString()}});
        return QString::fromUtf8(QJsonDocument(panels).toJson());
    }
    const QString json = script.sliced(start + 14, script.indexOf(u';', start) - start - 14);
    const auto changes = QJsonDocument::fromJson(json.toUtf8()).object();
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        auto& values = change.key().endsWith(u"/hiding"_s) ? hiding : marks;
        values.insert(change.key().section(u'/', 0, 0), change.value());
    }
    return u"done\n"_s;
}

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
    DesktopDock system{dockDrivers(configuration)};
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
        const QJsonObject before = shell.hiding;
        QVERIFY(world.write(hiding));
        QVERIFY(world.isHidden());
        QCOMPARE(shell.hiding.value(u"1"_s), u"none"_s);
        shell.hiding.insert(u"3"_s, u"windowscover"_s);
        QVERIFY(!world.isHidden());
        QVERIFY(world.write(saved));
        QCOMPARE(shell.hiding.value(u"2"_s), before.value(u"2"_s));
        QCOMPARE(shell.hiding.value(u"3"_s), u"windowscover"_s);
        QCOMPARE(shell.marks.value(u"2"_s), QString());
        QVERIFY(bus.unregisterService(u"org.kde.plasmashell"_s));
        QVERIFY(QTest::qWaitFor([&] { return !world.system.running(); }));
        QVERIFY(!world.write(saved));
    }
};

QTEST_GUILESS_MAIN(DocksTest)
#include "tst_Docks.moc"
