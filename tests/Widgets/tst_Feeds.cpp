#include "Files.h"
#include "Platform/Null/NullCalendarStore.h"
#include "Table.h"
#include "Widgets/ServiceFeed.h"
#include "Widgets/Services/Vercel.h"
#include "Widgets/Ticker/Ticker.h"
#include "Widgets/Weather/WeatherCode.h"
#include "Widgets/Weather/WeatherFeed.h"
#include "Widgets/Widgets.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeHttp.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Service = WidgetAccounts::Service;

namespace {

FakeHttp::Outcome deployed(const QByteArray& project) {
    return FakeHttp::answer(R"({"deployments":[{"name":")" + project + R"(","created":1,"readyState":"READY"}]})");
}

struct World {
    World() {
        store.secrets[u"vercel"_s] = u"key"_s;
        accounts.onChanged = [this](Service) { vercel.refreshForNewKey(); };
    }
    QString shown() const { return vercel.value() ? vercel.value()->value(0).project : QString(); }
    void show() {
        vercel.setActive(true);
        store.answer();
    }
    void refresh(bool force) {
        vercel.refresh(force);
        store.answer();
    }

    FakeClock clock;
    FakeHttp http;
    FakeSettings settings;
    FakeSecretStore store;
    WidgetAccounts accounts{store};
    ServiceFeed<QList<vercel::Deploy>> vercel{
        Service::vercel, accounts, clock, http, 120s, [this](const QString& key, auto done) {
            return vercel::fetch(http, key, std::move(done));
        }};
};

FakeHttp::Outcome recorded(const QString& name) {
    return FakeHttp::answer(contentOf(QStringLiteral(TEST_DATA "/services/") + name));
}

} // namespace

class FeedsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksOnlyWhileItShows() {
        World world;
        world.clock.advance(24h);
        world.refresh(true); // as a new key asks for
        QCOMPARE(world.http.requests.size(), 0);
        world.show();
        world.http.answerNext(deployed("shop"));
        QCOMPARE(world.shown(), u"shop"_s);
        world.refresh(false); // a moment ago
        QCOMPARE(world.http.requests.size(), 1);
        for (int i = 0; i < 60; ++i) {
            world.clock.advance(1min);
            world.store.answer();
            world.http.answerNext(deployed("shop"));
        }
        const auto inAnHour = world.http.requests.size() - 1;
        QVERIFY2(inAnHour >= 26 && inAnHour <= 30, qPrintable(QString::number(inAnHour)));
        world.vercel.setActive(false);
        world.clock.advance(24h);
        QCOMPARE(world.http.requests.size(), inAnHour + 1);
    }

    void aDayAsksOnlyForWhatIsPlaced() {
        World world;
        NullCalendarStore calendar;
        Widgets widgets(world.clock, world.http, world.settings, calendar, world.accounts, {});
        for (const auto& each : WidgetAccounts::all())
            world.store.secrets[enumName(each.service)] = u"key"_s;
        world.settings.values[u"tickerSymbols"_s] = QStringList{u"AAPL"_s};
        const auto live = [&](std::chrono::hours hours) {
            const auto asked = world.http.requests.size();
            for (std::chrono::minutes passed{}; passed < hours; passed += 1min) {
                world.clock.advance(1min);
                world.store.answer();
                world.http.serve([](const auto&) { return FakeHttp::answer("{}", 503); });
            }
            QSet<QString> hosts;
            for (const auto& request : world.http.requests.sliced(asked))
                hosts.insert(request.url.host());
            return hosts;
        };
        widgets.sync({.widgets = {u"timer"_s, u"clock"_s}});
        QVERIFY(live(24h).isEmpty());
        widgets.sync({.widgets = {u"linear"_s, u"ticker"_s}});
        QCOMPARE(live(2h), (QSet<QString>{u"api.linear.app"_s, u"query1.finance.yahoo.com"_s}));
        widgets.sync({.widgets = {u"linear"_s}});
        QCOMPARE(live(2h), (QSet<QString>{u"api.linear.app"_s}));
        // A key for what is not placed asks nobody, one for what is asks at once.
        const auto asked = world.http.requests.size();
        world.accounts.save(u"new"_s, Service::sentry);
        world.store.answer();
        QCOMPARE(world.http.requests.size(), asked);
        world.accounts.save(u"new"_s, Service::linear);
        world.store.answer();
        QCOMPARE(world.http.requests.size(), asked + 1);
    }

    void onlyTheNewestAnswerCounts() {
        World world;
        world.show();
        world.refresh(false); // one is under way
        QCOMPARE(world.http.requests.size(), 1);
        world.refresh(true);
        QCOMPARE(world.http.waiting(), 1U); // the first no longer waits for its answer
        world.http.answerNext(deployed("second"));
        QCOMPARE(world.shown(), u"second"_s);
    }

    void aKeyThatGoesTakesAllWithIt() {
        World world;
        world.accounts.read();
        world.show();
        world.http.answerNext(deployed("shop"));
        world.refresh(true);
        world.http.answerNext(FakeHttp::error());
        QCOMPARE(world.vercel.error(), u"Couldn't reach Vercel"_s);
        QCOMPARE(world.shown(), u"shop"_s); // the last good one stays
        world.refresh(true);
        world.accounts.remove(Service::vercel);
        world.store.answer();
        QCOMPARE(world.http.waiting(), 0U);
        QVERIFY(!world.vercel.value());
        QVERIFY(world.vercel.error().isEmpty());
        QVERIFY(!world.vercel.isLoading());
        QVERIFY(!world.vercel.isConnected());
    }

    void waitsForTheNetworkAndAsksOnce() {
        World world;
        world.http.setOnline(false);
        world.show();
        world.clock.advance(1h);
        world.store.answer();
        QCOMPARE(world.http.requests.size(), 0);
        QCOMPARE(world.vercel.error(), u"Couldn't reach Vercel"_s);
        world.http.setOnline(true);
        world.store.answer();
        world.http.setOnline(true);
        world.store.answer();
        QCOMPARE(world.http.requests.size(), 1);
        world.http.answerNext(deployed("shop"));
        world.http.setOnline(true);
        world.store.answer();
        QCOMPARE(world.http.requests.size(), 1);
        world.clock.sleep(8h);
        world.store.answer();
        QCOMPARE(world.http.requests.size(), 2);
        // Waking, it asked before the system saw that the network was gone.
        world.http.setOnline(false);
        world.http.setOnline(true);
        world.store.answer();
        QCOMPARE(world.http.requests.size(), 3);
        QCOMPARE(world.http.waiting(), 1U);
    }

    void leavesAServiceAloneThatAsksForIt_data() {
        const Table<HttpHeaders, int> row("headers", "minutes");
        row("for so long", {{"retry-after", "600"}}, 10);
        row("until a date", {{"retry-after", "Mon, 05 Jan 2026 09:01:00 GMT"}}, 20);
        row("and doesn't say how long", {}, 20);
    }
    void leavesAServiceAloneThatAsksForIt() {
        QFETCH(const HttpHeaders, headers);
        QFETCH(const int, minutes);
        World world;
        world.show();
        world.http.answerNext(FakeHttp::answer({}, 429, headers));
        QCOMPARE(world.vercel.error(), u"Vercel answered 429"_s);
        world.clock.advance(std::chrono::minutes(minutes - 1));
        world.refresh(true); // who presses a button is no exception
        world.http.setOnline(false);
        world.refresh(true);
        world.http.setOnline(true);
        world.refresh(true);
        QCOMPARE(world.http.requests.size(), 1);
        world.clock.advance(4min);
        world.store.answer();
        QCOMPARE(world.http.requests.size(), 2);
        world.http.answerNext(FakeHttp::answer({}, 429, headers));
        world.accounts.save(u"another"_s, Service::vercel); // of which nobody asked for a pause
        world.store.answer();
        QCOMPARE(world.http.requests.size(), 3);
    }

    void weatherIsOfThePickedCity() {
        World world;
        world.settings.values[u"AppleTemperatureUnit"_s] = u"Fahrenheit"_s;
        WeatherFeed weather(world.clock, world.http, world.settings);
        weather.setActive(true); // in Berlin, as the tests' time zone says
        world.clock.advance(0s);
        QCOMPARE(world.http.requests.last().url.toEncoded(),
                 "https://geocoding-api.open-meteo.com/v1/search?name=Berlin&count=1");
        world.http.answerNext(recorded(u"search.json"_s));
        QVERIFY(weather.isPlaceGuessed());
        QCOMPARE(
            world.http.requests.last().url.toEncoded(),
            "https://api.open-meteo.com/v1/forecast?latitude=52.52437&longitude=13.41053"
            "&current=temperature_2m,apparent_temperature,weather_code,is_day&hourly=temperature_2m,weather_code,is_day"
            "&daily=temperature_2m_max,temperature_2m_min&timezone=auto&forecast_days=2&timeformat=unixtime"
            "&temperature_unit=fahrenheit");
        world.http.answerNext(recorded(u"forecast.json"_s));
        const auto report = weather.report().value();
        QCOMPARE(report.felt, -6.2);
        QCOMPARE(report.high, 1.1);
        QCOMPARE(report.hours.size(), 2); // those gone by, and one without a temperature, are left out
        QCOMPARE(report.hours.first().temperature, -1.6);

        const auto askEveryHalfHour = world.http.requests.size();
        world.clock.advance(30min);
        world.clock.advance(300ms);
        world.http.answerNext(recorded(u"forecast.json"_s)); // later than the timer
        world.clock.advance(30min);
        QCOMPARE(world.http.requests.size(), askEveryHalfHour + 2);
        world.http.answerNext(recorded(u"forecast.json"_s));

        const auto asked = world.http.requests.size();
        weather.refresh(false);
        world.clock.advance(29min);
        QCOMPARE(world.http.requests.size(), asked);
        world.clock.setNow(world.clock.now() - 24h);
        world.clock.advance(30min);
        QCOMPARE(world.http.requests.size(), asked + 1);
        world.http.answerNext(recorded(u"forecast.json"_s));

        QList<bool> found;
        weather.setCity(u" A+B "_s, [&](const auto& outcome) { found.append(outcome && *outcome); });
        QCOMPARE(world.http.requests.last().url.toEncoded(),
                 "https://geocoding-api.open-meteo.com/v1/search?name=A%2BB&count=1");
        world.http.answerNext(FakeHttp::answer(R"({"generationtime_ms":0.4})"));
        weather.setCity(u"Berlin"_s, [&](const auto& outcome) { found.append(outcome && *outcome); });
        world.http.answerNext(recorded(u"search.json"_s));
        QCOMPARE(found, (QList{false, true}));
        QVERIFY(!weather.isPlaceGuessed());
        world.clock.advance(0s);
        world.http.answerNext(FakeHttp::answer("<html>"));
        QCOMPARE(weather.error(), u"Can't reach Open-Meteo"_s);
    }

    void aGuessedCityGoesWithItsZone() {
        const QByteArray home = qgetenv("TZ");
        World world;
        WeatherFeed weather(world.clock, world.http, world.settings);
        const auto travel = [&](const QByteArray& zone) {
            qputenv("TZ", zone);
            world.clock.advance(30min);
            return world.http.requests.last().url.query();
        };
        weather.setActive(true);
        world.clock.advance(0s);
        world.http.answerNext(recorded(u"search.json"_s));
        world.http.answerNext(recorded(u"forecast.json"_s));
        QCOMPARE(travel("Asia/Tokyo"), u"name=Tokyo&count=1"_s);
        world.http.answerNext(FakeHttp::error());
        QVERIFY(weather.report()); // better than nothing
        world.clock.advance(30min);
        world.http.answerNext(FakeHttp::answer(R"({"results":[{"name":"Tokyo","latitude":35.7,"longitude":139.7}]})"));
        QCOMPARE(weather.place()->name, u"Tokyo"_s);
        QVERIFY(!weather.report());
        world.http.answerNext(recorded(u"forecast.json"_s));
        QVERIFY(travel(home).startsWith(u"name="_s));
    }

    void weatherHasNames_data() {
        const Table<int, bool, QString, QString> row("code", "isDay", "title", "symbol");
        row("2 by day", 2, true, u"Partly cloudy"_s, u"cloud.sun.fill"_s);
        row("80 by night", 80, false, u"Showers"_s, u"cloud.moon.rain.fill"_s);
        row("65 by night", 65, false, u"Heavy rain"_s, u"cloud.heavyrain.fill"_s);
        row("99", 99, true, u"Storm with hail"_s, u"cloud.bolt.rain.fill"_s);
        row("3", 3, true, u"Cloudy"_s, u"cloud.fill"_s);
        row("one that nobody knows", 4, true, u"Cloudy"_s, u"cloud.fill"_s);
    }
    void weatherHasNames() {
        QFETCH(int, code);
        QFETCH(bool, isDay);
        const auto shown = weather::appearance(code, isDay);
        QTEST(shown.title, "title");
        QTEST(shown.symbol, "symbol");
    }

    void zonesNameCities_data() {
        const Table<QByteArray, QString> row("zone", "city");
        row("two words", "America/Argentina/Buenos_Aires", u"Buenos Aires"_s);
        row("no city", "Etc/GMT+3", {});
        row("none at all", "UTC", {});
    }
    void zonesNameCities() {
        QFETCH(QByteArray, zone);
        QTEST(cityOfZone(zone), "city");
    }

    void theTickerKeepsItsOrder() {
        World world;
        Ticker ticker(world.clock, world.http, world.settings);
        ticker.setActive(true);
        world.clock.advance(0s);
        QCOMPARE(world.http.requests.size(), 0); // none picked
        ticker.setSymbols({u" ^gspc "_s, u"a/../b"_s, u".."_s, u"AAPL"_s, u"aapl"_s});
        QCOMPARE(ticker.symbols(), (QStringList{u"^GSPC"_s, u"A/../B"_s, u"AAPL"_s}));
        world.clock.advance(0s);
        QCOMPARE(world.http.requests.size(), 3);
        QCOMPARE(world.http.requests[0].url.toEncoded(),
                 "https://query1.finance.yahoo.com/v8/finance/chart/%5EGSPC?range=1d&interval=15m");
        QCOMPARE(world.http.requests[1].url.toEncoded(),
                 "https://query1.finance.yahoo.com/v8/finance/chart/A%2F..%2FB?range=1d&interval=15m");
        world.http.answerNext(recorded(u"chart.json"_s), u"AAPL"_s);
        world.http.answerNext(FakeHttp::answer(R"({"chart":{"result":null}})", 404), u"A%2F"_s);
        QVERIFY(ticker.isLoading());
        world.http.answerNext(
            FakeHttp::answer(R"({"chart":{"result":[{"meta":{"regularMarketPrice":7,"previousClose":5},
                                 "indicators":{"quote":[{}]}}]}})"));
        QCOMPARE(ticker.error(), u"Couldn't load A/../B"_s);
        const auto quotes = ticker.quotes();
        QCOMPARE(quotes.size(), 2);
        QCOMPARE(quotes[0].move(), 2);
        QVERIFY(quotes[0].points.isEmpty());
        QCOMPARE(quotes[1].move(), 3.5);
        QCOMPARE(quotes[1].points, (QList<double>{268.5, 270.0, 271.5}));

        for (const auto& [body, status] : {std::pair("<html>", 200), {"", 503}, {"", 429}}) {
            world.clock.advance(6min);
            world.http.serve([=](const auto&) { return FakeHttp::answer(body, status); });
            QCOMPARE(ticker.quotes().size(), 2); // old, and still right
            QCOMPARE(ticker.error(), u"Couldn't load ^GSPC, A/../B, AAPL"_s);
        }
        const auto asked = world.http.requests.size();
        world.clock.advance(18min);
        QCOMPARE(world.http.requests.size(), asked); // after "too many requests"
        world.clock.advance(6min);
        world.http.serve([](const auto&) { return FakeHttp::answer(R"({"chart":{"result":[]}})"); });
        QVERIFY(ticker.quotes().isEmpty());
    }
};

QTEST_GUILESS_MAIN(FeedsTest)
#include "tst_Feeds.moc"
