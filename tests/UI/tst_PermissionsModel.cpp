#include "App/ControllerWorld.h"
#include "UI/Images/AppIcons.h"
#include "UI/Setup/PermissionsModel.h"
#include "fakes/FakeCalendarStore.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeShell.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

class FakeRemedies final : public Remedies {
public:
    QHash<QString, Remedy> find() const override { return remedies; }
    void open(const QStringList& page) override { opened += page; }

    QHash<QString, Remedy> remedies;
    QStringList opened;
};

enum class Browser { none, installed, used, running };

/// A system that lacks all but a locked keyring, with one browser in some state.
struct World : ControllerWorld {
    World(Browser browser, const QHash<QString, Remedy>& found) {
        auto secretStore = std::make_unique<FakeSecretStore>();
        secrets = secretStore.get();
        secrets->problem = SecretStore::Problem::locked;
        fake.platform.secrets = std::move(secretStore);
        auto calendarStore = std::make_unique<FakeCalendarStore>();
        calendar = calendarStore.get();
        const bool hasCalendar = found.value(u"calendar"_s).isInstalled;
        calendar->state = hasCalendar ? CalendarStore::Access::granted : CalendarStore::Access::missing;
        fake.platform.calendar = std::move(calendarStore);
        auto fakeShell = std::make_unique<FakeShell>();
        shell = fakeShell.get();
        fake.platform.shell = std::move(fakeShell);
        auto fakeRemedies = std::make_unique<FakeRemedies>();
        remedies = fakeRemedies.get();
        remedies->remedies = found;
        fake.platform.remedies = std::move(fakeRemedies);
        const bool isUsed = browser == Browser::used || browser == Browser::running;
        if (browser != Browser::none) {
            fake.platform.browsers = {{.data = isUsed ? fake.home.path() : u"/nowhere"_s,
                                       .family = BrowserHome::Family::mozilla,
                                       .name = u"Fox"_s,
                                       .bundleID = u"org.fox"_s}};
            fake.applications->locations.insert(u"org.fox"_s, u"fox"_s);
        }
        launch();
        if (browser == Browser::running)
            run(u"org.fox"_s);
        icons.emplace(controller->workspace());
        capabilities.emplace(*controller);
    }
    /// Whether something came of it.
    bool isDone(PermissionsModel& model, const QString& row, const QString& action) {
        QGuiApplication::clipboard()->clear();
        takeRequests();
        shown.clear();
        remedies->opened.clear();
        shell->revealed.clear();
        model.act(row, action);
        secrets->answer();
        return !QGuiApplication::clipboard()->text().isEmpty() || !takeRequests().isEmpty() || !shown.isEmpty() ||
               !remedies->opened.isEmpty() || !shell->revealed.isEmpty() || !secrets->problem;
    }

    FakeSecretStore* secrets{};
    FakeCalendarStore* calendar{};
    FakeShell* shell{};
    FakeRemedies* remedies{};
    std::optional<AppIcons> icons;
    std::optional<Capabilities> capabilities;
};

QVariant role(const PermissionsModel& model, const QString& row, const QByteArray& name) {
    const auto names = model.roleNames();
    const auto found = model.match(model.index(0), names.key("rowID"), row, 1, Qt::MatchExactly);
    return found.isEmpty() ? QVariant() : model.data(found.first(), names.key(name));
}

QStringList actions(const PermissionsModel& model, const QString& row) {
    QStringList ids;
    for (const QVariant& action : role(model, row, "actions").toList())
        ids.append(action.toMap()[u"id"_s].toString());
    return ids;
}

} // namespace

class PermissionsModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatCanBeDone_data() {
        QTest::addColumn<QString>("row");
        QTest::addColumn<Browser>("browser");
        QTest::addColumn<Remedy>("found");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("remedy");
        QTest::addColumn<QStringList>("does");
        const Remedy nothing;
        const Remedy page{.page = {u"see-to-it"_s}};
        const Remedy command{.command = u"get it"_s};
        const Remedy both{.page = page.page, .command = command.command};
        const Remedy linked{.isInstalled = true};
        const auto add = [](const char* name, const char* row, Browser browser, const Remedy& found, const char* label,
                            const char* remedy, const QStringList& does) {
            QTest::newRow(name) << QString::fromLatin1(row) << browser << found << QString::fromLatin1(label)
                                << QString::fromLatin1(remedy) << does;
        };
        const QString open = u"open"_s;
        const QStringList byHand{u"address"_s, u"folder"_s};
        const QStringList run{u"command"_s};
        const QStringList go{u"page"_s};
        const QStringList settings{u"settings"_s};
        constexpr auto used = Browser::used;
        constexpr auto running = Browser::running;
        add("connected by hand", "browser Fox", used, nothing, "Not running", "about:debugging",
            QStringList{open} + byHand);
        add("or for good", "browser Fox", used, command, "Not running", "about:debugging",
            QStringList{open} + byHand + run);
        add("the extension is in", "browser Fox", used, linked, "Not running", "Start Fox.", {open});
        add("for good while it runs", "browser Fox", running, command, "Not connected", "about:", byHand + run);
        add("in, and runs without", "browser Fox", running, linked, "Not connected", "doesn't help", byHand);
        add("a browser to start", "browser", Browser::installed, command, "Not here", "Start one", {open});
        add("a browser to get", "browser", Browser::none, command, "Not here", "Install one", run);
        add("a calendar", "calendar", Browser::none, {.page = page.page, .isInstalled = true}, "Works", "",
            go + settings);
        add("one that shares nothing", "calendar", Browser::none, both, "None found", "shares", run + settings);
        add("no calendar", "calendar", Browser::none, command, "None found", "command", run + settings);
        add("a tray to add", "statusArea", Browser::none, both, "Not here", "Add a tray", go);
        add("a tray to get", "statusArea", Browser::none, command, "Not here", "installs", run);
        add("no tray", "statusArea", Browser::none, nothing, "Not here", "", {});
        add("to log in again for", "notifications", Browser::none, nothing, "Missing", "Log out", {});
        add("compositing", "transparency", Browser::none, page, "Off", "desktop's settings", go);
        add("a compositor", "transparency", Browser::none, command, "Off", "picom", run);
        add("a locked keyring", "keyring", Browser::none, command, "Locked", "", {u"unlock"_s});
        add("what works", "titles", Browser::none, both, "Works", "", settings);
    }
    void whatCanBeDone() {
        QFETCH(const QString, row);
        QFETCH(const Remedy, found);
        QFETCH(const Browser, browser);
        QFETCH(const QString, remedy);
        World world(browser, {{row, found}});
        PermissionsModel model(*world.controller, *world.icons, *world.capabilities, PermissionsModel::Shows::all);
        PermissionsModel browsers(*world.controller, *world.icons, *world.capabilities,
                                  PermissionsModel::Shows::browsers);
        model.refresh();
        world.secrets->answer();
        QTRY_VERIFY(role(model, u"calendar"_s, "standing") != u"unknown"_s); // the disk was looked at

        QFETCH(const QStringList, does);
        QTRY_COMPARE(actions(model, row), does);
        QTEST(role(model, row, "stateLabel").toString(), "label");
        QVERIFY2(role(model, row, "remedy").toString().contains(remedy),
                 qPrintable(role(model, row, "remedy").toString()));
        const bool hasCommand = actions(model, row).contains(u"command"_s);
        QCOMPARE(role(model, row, "command").toString(), hasCommand ? found.command : QString());
        QCOMPARE(role(model, row, "commandHelp").toString().contains(u"terminal"), hasCommand);
        QCOMPARE(actions(browsers, row), row.startsWith(u"browser") ? actions(model, row) : QStringList());
        const QStringList offered = actions(model, row);
        for (const QString& action : offered)
            QVERIFY2(world.isDone(model, row, action), qPrintable(action));
    }

    void whatWasInstalledIsSeenWhenItOpensAgain() {
        World world(Browser::none, {{u"calendar"_s, {.command = u"get it"_s}}});
        PermissionsModel model(*world.controller, *world.icons, *world.capabilities, PermissionsModel::Shows::all);
        model.refresh();
        QTRY_VERIFY(actions(model, u"calendar"_s).contains(u"command"_s));
        world.remedies->remedies = {{u"calendar"_s, {.page = {u"see-to-it"_s}, .command = u"get it"_s}}};
        world.calendar->state = CalendarStore::Access::granted;
        model.refresh();
        QTRY_VERIFY(actions(model, u"calendar"_s).contains(u"page"_s));
        QVERIFY(role(model, u"calendar"_s, "command").toString().isEmpty());
        model.act(u"calendar"_s, u"page"_s);
        QCOMPARE(world.remedies->opened, QStringList{u"see-to-it"_s});
    }
};

QTEST_MAIN(PermissionsModelTest)
#include "tst_PermissionsModel.moc"
