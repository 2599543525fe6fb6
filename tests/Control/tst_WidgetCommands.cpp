#include "App/ControllerWorld.h"
#include "Control/CommandHandlers.h"
#include "Files.h"
#include "Table.h"
#include "fakes/FakeHttp.h"
#include "fakes/FakeSecretStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace fendrel;
using namespace fendrel::control;
using namespace Qt::StringLiterals;

namespace {

const QString secret = u"sk_live_51Hx"_s;

/// Every service is connected, and answers what was recorded.
struct World : ControllerWorld {
    World() {
        store = put<FakeSecretStore>(fake.platform.secrets);
        http = put<FakeHttp>(fake.platform.http);
        for (const auto& each : WidgetAccounts::all())
            store->secrets.insert(enumName(each.service), secret);
        store->secrets.remove(u"vercel"_s);
        fake.settings->values.insert(Ticker::settingKey, QStringList{u"AAPL"_s});
        handlers.emplace(launch());
    }
    template<class Fake, class Port>
    static Fake* put(std::unique_ptr<Port>& place) {
        auto made = std::make_unique<Fake>();
        Fake* pointer = made.get();
        place = std::move(made);
        return pointer;
    }
    void place(const QString& widget) {
        Mode mode = controller->engine().current();
        mode.widgets = {widget};
        controller->engine().update(mode);
    }
    void fetch() {
        for (int turn = 0; turn < 3; ++turn) { // who asks whom first differs
            store->answer();
            fake.clock->advance({});
            http->serve([](const HttpRequest& request) {
                const QString address = request.url.toString();
                const QList<std::pair<QString, QString>> recorded{{u"github"_s, u"services/github"_s},
                                                                  {u"stripe"_s, u"revenue/stripe"_s},
                                                                  {u"linear"_s, u"services/linear"_s},
                                                                  {u"/issues/"_s, u"services/sentry-issues"_s},
                                                                  {u"sentry"_s, u"services/sentry-organizations"_s},
                                                                  {u"geocoding"_s, u"services/search"_s},
                                                                  {u"open-meteo"_s, u"services/forecast"_s},
                                                                  {u"yahoo"_s, u"services/chart"_s}};
                for (const auto& [part, file] : recorded)
                    if (address.contains(part))
                        return FakeHttp::answer(contentOf(QStringLiteral(TEST_DATA "/%1.json").arg(file)));
                return FakeHttp::answer({}, 503);
            });
        }
    }
    Result<QJsonValue, QString> say(const QString& words) {
        auto said = Result<QJsonValue, QString>::failure(u"no answer"_s);
        handlers->run(*parse(words.split(u' ')).request, [&](const auto& answer) { said = answer; });
        store->answer();
        return said;
    }

    FakeSecretStore* store{};
    FakeHttp* http{};
    std::optional<CommandHandlers> handlers;
};

} // namespace

class WidgetCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listsEveryKind() {
        World world;
        world.place(u"weather"_s);
        world.controller->widgetSizes().set(u"writing"_s, DockWidget::weather, WidgetSize::large);
        const auto said = world.say(u"widgets"_s);
        QVERIFY(said);
        const QJsonArray kinds = said->toArray();
        QCOMPARE(kinds.size(), dockWidgetKinds().size());
        const QJsonObject weather = kinds.at(int(DockWidget::weather)).toObject();
        QCOMPARE(weather[u"id"], u"weather"_s);
        QCOMPARE(weather[u"modes"], QJsonValue(QJsonObject{{u"writing"_s, u"large"_s}}));
        QCOMPARE(weather[u"hasCard"], true);
        QCOMPARE(kinds.at(int(DockWidget::clock))[u"hasCard"], false);
        QCOMPARE(kinds.at(int(DockWidget::linear))[u"accounts"],
                 QJsonValue(QJsonObject{{u"linear"_s, u"connected"_s}}));
        QCOMPARE(kinds.at(int(DockWidget::deploys))[u"accounts"],
                 QJsonValue(QJsonObject{{u"vercel"_s, u"not connected"_s}}));
    }

    void showsWhatWasFetched_data() {
        const Table<QString, QString> row("widget", "part");
        row("pull requests", u"github"_s, uR"("login":)"_s);
        row("sales", u"revenue"_s, uR"("cumulativeCurrency":"USD")"_s);
        row("issues", u"linear"_s, uR"("stateType":"started")"_s);
        row("errors", u"sentry"_s, uR"("shortId":)"_s);
        row("weather", u"weather"_s, uR"("isGuessed":true)"_s); // of the tests' time zone
        row("quotes", u"ticker"_s, uR"("symbols":["AAPL"])"_s);
    }

    void showsWhatWasFetched() {
        QFETCH(const QString, widget);
        QFETCH(const QString, part);
        World world;
        const auto empty = world.say(u"widget "_s + widget);
        QVERIFY(empty);
        QVERIFY(!(*empty)["active"_L1].toBool() && (*empty)["updatedAt"_L1].isNull());
        world.place(widget);
        world.fetch();
        const auto said = world.say(u"widget "_s + widget);
        QVERIFY(said);
        const QByteArray text = QJsonDocument(said->toObject()).toJson(QJsonDocument::Compact);
        QVERIFY2(text.contains(part.toUtf8()), text.constData());
        QVERIFY((*said)["active"_L1].toBool() && !(*said)["isLoading"_L1].toBool());
        QVERIFY2((*said)["error"_L1].isNull(), text.constData());
        QVERIFY(QDateTime::fromString((*said)["updatedAt"_L1].toString(), Qt::ISODateWithMs).isValid());
        QVERIFY(!text.contains(secret.toUtf8()));
    }

    void saysWhyThereIsNothing_data() {
        const Table<QString, QString> row("name", "problem");
        row("unknown", u"nothing"_s, u"unknown widget 'nothing'; see fendrelctl widgets"_s);
        row("without data", u"clock"_s, u"clock has no data: this version has no card for it"_s);
    }

    void saysWhyThereIsNothing() {
        QFETCH(const QString, name);
        World world;
        const auto said = world.say(u"widget "_s + name);
        QVERIFY(!said);
        QTEST(said.error(), "problem");
    }

    void aFailureIsTold() {
        World world;
        world.store->secrets.insert(u"vercel"_s, secret);
        world.place(u"deploys"_s);
        world.fetch();
        const auto said = world.say(u"widget deploys"_s);
        QVERIFY(said);
        QCOMPARE((*said)["error"_L1], QJsonValue(u"Vercel answered 503"_s));
        QVERIFY((*said)["value"_L1].isNull());
    }
};

QTEST_GUILESS_MAIN(WidgetCommandsTest)
#include "tst_WidgetCommands.moc"
