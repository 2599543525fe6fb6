#include "App/ControllerWorld.h"
#include "Table.h"
#include "UI/Widgets/WidgetActions.h"
#include "UI/Widgets/WidgetCardsModel.h"
#include "fakes/FakeCalendarStore.h"
#include "fakes/FakeHttp.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeShell.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct World : ControllerWorld {
    template<class Fake, class Port>
    static Fake& put(std::unique_ptr<Port>& port) {
        auto fake = std::make_unique<Fake>();
        Fake& kept = *fake;
        port = std::move(fake);
        return kept;
    }
    World() {
        app.engine().commit(Mode(*app.engine().mode(u"writing"_s)));
        place({u"weather"_s, u"timer"_s, u"github"_s, u"deploys"_s});
    }
    void place(const QStringList& widgets) {
        Mode mode = app.engine().current();
        mode.widgets = widgets;
        app.engine().update(mode);
        secrets.answer();
    }
    void deploy(const QByteArray& address) {
        http.answerNext(
            FakeHttp::answer(R"({"deployments":[{"name":"site","created":1,"readyState":"READY","inspectorUrl":")" +
                             address + R"("}]})"),
            u"vercel"_s);
    }
    QString order() const { return cards.order().join(u' '); }

    FakeHttp& http = put<FakeHttp>(fake.platform.http);
    FakeSecretStore& secrets = put<FakeSecretStore>(fake.platform.secrets);
    FakeShell& shell = put<FakeShell>(fake.platform.shell);
    FakeCalendarStore& calendar = put<FakeCalendarStore>(fake.platform.calendar);
    AppController& app = [this]() -> AppController& {
        secrets.secrets[u"vercel"_s] = u"key"_s;
        return launch();
    }();
    WidgetCardsModel cards{app};
    WidgetActions actions{app, cards};
};

} // namespace

class WidgetCardsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void carriesWithoutEditing_data() {
        const Table<QString, int, QString> row("carried", "place", "order");
        row("to the end", u"weather"_s, 2, u"github deploys weather"_s);
        row("beyond it", u"weather"_s, 9, u"github deploys weather"_s);
        row("away", u"github"_s, WidgetCardsModel::Nowhere, u"weather deploys"_s);
        row("what has no card", u"timer"_s, 0, u"weather github deploys"_s);
        row("what is not placed", u"ticker"_s, 0, u"weather github deploys"_s);
    }
    void carriesWithoutEditing() {
        QFETCH(const QString, carried);
        QFETCH(const int, place);
        World world;
        world.cards.carry(carried, place);
        QTEST(world.order(), "order");
        QCOMPARE(world.app.engine().current().widgets.join(u' '), u"weather timer github deploys"_s);
        world.cards.letGo();
        QCOMPARE(world.order(), u"weather github deploys"_s);
    }

    void stepsAroundWhatHasNoCard() {
        World world;
        world.actions.move(u"weather"_s, 1);
        QCOMPARE(world.app.engine().current().widgets.join(u' '), u"github timer weather deploys"_s);
        world.actions.move(u"deploys"_s, 1); // it is the last
        QCOMPARE(world.order(), u"github weather deploys"_s);
    }

    void keepsItsSizeThroughRemoval() {
        World world;
        world.actions.resize(u"github"_s, u"large"_s);
        world.actions.remove(u"github"_s);
        QCOMPARE(world.cards.steps().size(), 2);
        world.app.undo().runUndo();
        QCOMPARE(world.order(), u"weather github deploys"_s);
        QCOMPARE(world.cards.steps()[1].toStringList().first(), u"large"_s);
    }

    void changesOnlyTheRowConcerned() {
        World world;
        const QSignalSpy changes(&world.cards, &QAbstractItemModel::dataChanged);
        world.deploy("https://vercel.com/site");
        QVERIFY(!changes.isEmpty());
        for (const auto& change : changes)
            QCOMPARE(change[0].toModelIndex().row(), 2);
    }

    void looksAtTheTimeOnlyForWhatGrowsOld() {
        World world;
        world.place({u"deploys"_s});
        const auto before = world.fake.clock->pending();
        world.deploy("https://vercel.com/site");
        QCOMPARE(world.fake.clock->pending(), before + 1);
        world.place({u"timer"_s});
        QCOMPARE(world.fake.clock->pending(), before - 1); // its feed rests, too
    }

    void opensOnlyWhatItShould_data() {
        const Table<QByteArray, QByteArray, int> row("widget", "address", "opened");
        row("a page", "deploys", "https://vercel.com/site", 1);
        row("what is needed first", "github", "https://vercel.com/site", 0);
        row("what is no widget", "x", "https://vercel.com/site", 0);
    }
    void opensOnlyWhatItShould() {
        QFETCH(const QByteArray, widget);
        QFETCH(const QByteArray, address);
        World world;
        world.deploy(address);
        world.actions.press(QString::fromLatin1(widget));
        QTEST(static_cast<int>(world.shell.addresses.size()), "opened");
        QCOMPARE(world.shown.contains(u"settings accounts"_s), widget == "github");
        world.actions.open(QUrl(u"file:///etc/passwd"_s));
        world.actions.open(QUrl(u"javascript:alert(1)"_s));
        world.actions.open(QUrl(u"https:///no-host"_s));
        QTEST(static_cast<int>(world.shell.addresses.size()), "opened");
    }

    void asksForWhatItMayNotRead_data() {
        using enum CalendarStore::Access;
        const Table<CalendarStore::Access, QString, CalendarStore::Access> row("access", "shown", "after");
        row("not asked yet", unknown, {}, granted);
        row("denied", denied, u"settings permissions"_s, denied);
        row("none there", missing, u"settings widgets"_s, missing);
    }
    void asksForWhatItMayNotRead() {
        QFETCH(const CalendarStore::Access, access);
        World world;
        for (const QString& widget : {u"calendar"_s, u"reminders"_s}) {
            world.calendar.state = access;
            world.place({widget});
            world.shown.clear();
            world.actions.press(widget);
            QTEST(world.shown.join(u' '), "shown");
            QTEST(world.calendar.state, "after");
        }
    }

    void countsDownOnTheFullMinute() {
        World world;
        const WallTime now = world.fake.clock->now();
        world.fake.clock->advance(40s);
        world.calendar.eventItems = {{.id = u"1"_s, .title = u"Review"_s, .start = now + 5min, .end = now + 9min}};
        world.place({u"calendar"_s});
        world.calendar.answerAll(); // and later it says nothing
        const auto said = [&] { return world.cards.content(u"calendar"_s)->caption; };
        QCOMPARE(said(), u"in 5 min"_s);
        world.fake.clock->advance(19s);
        QCOMPARE(said(), u"in 5 min"_s);
        world.fake.clock->advance(1s);
        QCOMPARE(said(), u"in 4 min"_s);
        world.fake.clock->advance(8min);
        QCOMPARE(world.cards.content(u"calendar"_s)->state, CardContent::State::empty);
    }

    void aTickCanBeTakenBack() {
        World world;
        const WallTime today = world.fake.clock->now();
        world.calendar.reminderItems = {{.id = u"1"_s, .title = u"Milk"_s, .due = today},
                                        {.id = u"2"_s, .title = u"Bread"_s, .due = today}};
        world.place({u"reminders"_s});
        world.calendar.answerAll();
        const auto titles = [&world] {
            QStringList list;
            world.calendar.answerAll();
            for (const CalendarReminder& each : world.calendar.reminderItems)
                list.append(each.title);
            return list.join(u", "_s);
        };
        world.actions.tick(u"1"_s, true);
        world.actions.tick(u"2"_s, true);
        world.actions.tick(u"1"_s, false);
        QCOMPARE(titles(), u"Milk, Bread"_s);
        QCOMPARE(world.actions.ticked(), QStringList{u"2"_s});
        world.fake.clock->advance(5s);
        QCOMPARE(titles(), u"Milk"_s);
        QCOMPARE(world.actions.ticked(), QStringList());
        QCOMPARE(world.cards.content(u"reminders"_s)->headline, u"1"_s);
        world.actions.addReminder(u"  Call\nGrace "_s);
        QCOMPARE(titles(), u"Milk, Call Grace"_s);
        world.actions.addReminder(u"  "_s);
        QCOMPARE(titles(), u"Milk, Call Grace"_s);
    }
};

QTEST_GUILESS_MAIN(WidgetCardsTest)
#include "tst_WidgetCards.moc"
