#include "App/DockAppearance.h"
#include "CardSamples.h"
#include "Table.h"
#include "UI/Images/SymbolImages.h"
#include "UI/Widgets/CardText.h"
#include "UI/Widgets/CurvePath.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QtQml/qqmlextensionplugin.h>
#include <QtTest>

#include <memory>

Q_IMPORT_QML_PLUGIN(Fendrel_StylePlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_WidgetsPlugin)

void qml_register_types_Fendrel_Types(); // NOLINT(readability-identifier-naming): the name is Qt's

using namespace fendrel;
using namespace std::chrono_literals;

using State = CardContent::State;
using Tone = CardContent::Tone;

namespace {

WallTime local(QDate day, QTime time) {
    return toWallTime(QDateTime(day, time));
}

CardContent revenueCard(const QList<ServiceSale>& sales, const Rates& rates, WallTime now = samples::afternoon()) {
    CardContent card{.state = State::ready};
    const QDate day = toDateTime(now).toLocalTime().date();
    describe(card, revenueDay(day, QTimeZone::systemTimeZone(), sales, rates), now);
    return card;
}

ServiceSale sale(qint64 amount, const QString& currency, WallTime created = samples::at(10)) {
    return {WidgetAccounts::Service::stripe, {{amount, currency}, created, {}}};
}

CardRow row(const CardContent& card, qsizetype index) {
    return card.rows.value(index).value<CardRow>();
}

/// What assistive programs know by this name.
QQuickItem* named(const QString& name, QQuickItem* from) {
    if (const auto* known = QAccessible::queryAccessibleInterface(from);
        known && known->isValid() && from->isVisible() && known->text(QAccessible::Name) == name &&
        known->role() != QAccessible::StaticText)
        return from;
    for (QQuickItem* child : from->childItems())
        if (QQuickItem* found = named(name, child))
            return found;
    return nullptr;
}

/// A card alone in a window.
struct CardView : QQuickView {
    CardView(const CardContent& content, const QString& size, bool isVertical) {
        engine()->addImportPath(u"qrc:/qml"_s);
        engine()->addImageProvider(u"symbol"_s, new SymbolImages);
        QQmlComponent component(engine());
        component.setData("import QtQuick; import Fendrel.Style; import Fendrel.Widgets\n"
                          "WidgetCard { colors: Colors { isDark: false } }",
                          {});
        QObject* card = component.createWithInitialProperties({{u"content"_s, QVariant::fromValue(content)},
                                                               {u"title"_s, u"Card"_s},
                                                               {u"shortTitle"_s, u"Card"_s},
                                                               {u"symbol"_s, u"checklist"_s},
                                                               {u"accent"_s, QColor(Qt::blue)},
                                                               {u"size"_s, size},
                                                               {u"isVertical"_s, isVertical},
                                                               {u"extent"_s, 76}});
        if (!card)
            qFatal("%s", qPrintable(component.errorString()));
        setContent({}, &component, card);
        show();
    }
};

} // namespace

/// What cards say is true, and can be read.
class CardsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qml_register_types_Fendrel_Types(); }

    void whatIsOldSaysSo() {
        CardWorld world;
        world.connect({u"github"_s});
        world.show(DockWidget::github);
        QCOMPARE(world.card(DockWidget::github).state, State::waiting);
        QVERIFY(
            world.http.answerNext(FakeHttp::answer(R"({"data":{"viewer":{"login":"ada","pullRequests":{"totalCount":0,
            "nodes":[]}},"search":{"issueCount":25,"nodes":[]}}})")));
        QCOMPARE(world.card(DockWidget::github).headline, u"25"_s);
        QCOMPARE(world.card(DockWidget::github).age, QString());

        world.clock.advance(6min); // and nobody answers
        QCOMPARE(world.card(DockWidget::github).age, QString());
        world.store.answer();
        QVERIFY(world.http.answerNext(FakeHttp::answer({}, 500)));
        const CardContent failed = world.card(DockWidget::github);
        QCOMPARE(failed.state, State::ready);
        QCOMPARE(failed.headline, u"25"_s);
        QVERIFY(!failed.problem.isEmpty());
        QCOMPARE(failed.age, u"6 min ago"_s);
        QCOMPARE(card::age(samples::at(15), samples::at(9)), u"now"_s); // the clock was set back
    }

    void whoHasNoKeyIsToldWhy_data() {
        const Table<bool, std::optional<SecretStore::Problem>, State, QString> add("isRead", "problem", "state",
                                                                                   "says");
        add("nobody knows yet", false, {}, State::waiting, {});
        add("there is none", true, {}, State::disconnected, u"Connect Linear"_s);
        add("locked", true, SecretStore::Problem::locked, State::disconnected, u"Unlock your keyring"_s);
        add("no keyring", true, SecretStore::Problem::missing, State::disconnected, u"No keyring found"_s);
    }
    void whoHasNoKeyIsToldWhy() {
        QFETCH(const bool, isRead);
        QFETCH(const std::optional<SecretStore::Problem>, problem);
        CardWorld world;
        world.store.problem = problem;
        if (isRead)
            world.show(DockWidget::linear);
        const CardContent card = world.card(DockWidget::linear);
        QTEST(card.state, "state");
        QTEST(card.headline, "says");
    }

    void followsAKeyringThatLocksAndUnlocks() {
        CardWorld world;
        world.connect({u"linear"_s});
        world.show(DockWidget::linear);
        QVERIFY(world.http.answerNext(FakeHttp::answer(R"({"data":{"viewer":{"assignedIssues":{"nodes":[]}}}})")));
        for (const auto& [problem, state] :
             {std::pair(std::optional(SecretStore::Problem::locked), State::disconnected),
              {std::nullopt, State::waiting}}) {
            world.store.problem = problem; // another program did that
            const auto asked = world.store.asked.size();
            world.clock.advance(6min);
            world.store.answer();
            QCOMPARE(world.card(DockWidget::linear).state, state);
            QCOMPARE(world.store.asked.size(), asked + 1);
        }
        QVERIFY(world.http.answerNext(FakeHttp::error()));
        world.store.secrets.clear();
        world.clock.advance(6min);
        world.store.answer();
        QCOMPARE(world.card(DockWidget::linear).headline, u"Connect Linear"_s);
    }

    void salesSayHowOldTheyAre() {
        CardWorld world;
        world.connect({u"stripe"_s, u"paddle"_s});
        const auto live = [&](int stripeStatus) {
            world.store.answer();
            world.http.serve([=](const HttpRequest& request) {
                const bool isStripe = request.url.host().contains(u"stripe"_s);
                return FakeHttp::answer(R"({"data":[],"meta":{}})", isStripe ? stripeStatus : 200);
            });
        };
        world.show(DockWidget::revenue);
        live(200);
        QCOMPARE(world.card(DockWidget::revenue).age, QString());
        world.clock.advance(11min);
        live(500);
        const CardContent card = world.card(DockWidget::revenue);
        QCOMPARE(card.problem, u"Stripe answered 500"_s);
        QCOMPARE(card.age, u"11 min ago"_s);
    }

    void amountsAreHonest() {
        const Rates rates{{u"USD"_s, 1}, {u"EUR"_s, 0.5}};
        const auto converted = revenueCard({sale(10000, u"EUR"_s), sale(10000, u"USD"_s)}, rates);
        QCOMPARE(converted.headline, u"€150.00"_s);
        QCOMPARE(converted.sourceAddress, ExchangeRates::source());
        QVERIFY(!converted.source.isEmpty());
        QCOMPARE(revenueCard({sale(10000, u"EUR"_s)}, rates).source, QString());

        const auto apart = revenueCard({sale(10000, u"EUR"_s), sale(20000, u"EUR"_s), sale(500, u"USD"_s)}, {});
        QCOMPARE(apart.headline, u"€300.00"_s);
        QCOMPARE(row(apart, 0).value, u"$5.00"_s); // is not lost
        QCOMPARE(apart.source, QString());

        const auto paidBack = revenueCard({sale(-4900, u"EUR"_s)}, rates);
        QCOMPARE(paidBack.headline, u"-€49.00"_s);
        QCOMPARE(paidBack.tone, Tone::bad);
        QCOMPARE(paidBack.curve.first(), 1.0); // from nothing down
        QCOMPARE(paidBack.curve.last(), 0.0);
    }

    void theDayIsAsLongAsItIs_data() {
        const Table<QDate, double, int> add("day", "share", "points");
        add("24 hours", QDate(2026, 1, 5), 12.0 / 24, 25);
        add("23 hours", QDate(2026, 3, 29), 11.0 / 23, 24);
        add("25 hours", QDate(2026, 10, 25), 13.0 / 25, 26);
    }
    void theDayIsAsLongAsItIs() {
        QFETCH(const QDate, day);
        const auto card = revenueCard({sale(100, u"EUR"_s, local(day, QTime(10, 0)))}, {}, local(day, QTime(12, 0)));
        QTEST(card.curveNow, "share");
        QTEST(static_cast<int>(card.curve.size()), "points");
    }

    void curvesStayInTheirArea() {
        const QRectF area(10, 10, 100, 40);
        const QRectF room = area.adjusted(-0.01, -0.01, 0.01, 0.01);
        for (const std::vector<double>& values :
             {std::vector<double>{}, {1}, {2, 2}, {1e308, -1e308}, {0, 0, 9, 9, 0}, {3, 1, 2}}) {
            const auto points = card::scaled(values);
            for (const qreal point : points)
                QVERIFY(point >= 0 && point <= 1);
            for (const qreal now : {0.0, 0.3, 1.0, 7.0}) {
                const QPainterPath path = curvePath(points, now, area);
                QCOMPARE(path.isEmpty(), points.size() < 2 || now == 0.0);
                const QRectF drawn = path.isEmpty() ? area : path.boundingRect();
                QVERIFY(room.contains(drawn.topLeft()) && room.contains(drawn.bottomRight()));
            }
        }
        // What was sold in this hour is in the curve.
        QCOMPARE(curvePath({0, 0, 1, 1}, 0.5, area).currentPosition(), QPointF(60, 10));
    }

    void hoursGoneByAreLeftOut() {
        CardContent card;
        weather::Report report = samples::weather();
        report.temperature = -0.4;
        describe(card, report, {.name = u"Berlin"_s}, samples::at(17, 30));
        QCOMPARE(card.headline, u"0°"_s);
        QCOMPARE(row(card, 0).title, u"Now"_s);
        QCOMPARE(row(card, 1).title, u"18"_s);
    }

    void linesSayHowThingsStand() {
        CardContent linear;
        describe(linear, samples::issues(), samples::afternoon());
        QCOMPARE(row(linear, 0).tone, Tone::busy);    // due today
        QCOMPARE(row(linear, 2).tone, Tone::bad);     // overdue
        QCOMPARE(row(linear, 3).tone, Tone::neutral); // in four days
        QVERIFY(row(linear, 2).detail.startsWith(u"Overdue"_s));

        github::Snapshot requests = samples::pullRequests();
        requests.own.last().ci = github::CI::failing;
        CardContent github;
        describe(github, requests);
        QCOMPARE(github.note, u"Checks failing · 2 of your own"_s);
        QCOMPARE(row(github, 4).detail, u"acme/shop #398 · Checks failing"_s);

        CardContent deploys;
        describe(deploys, samples::deploys(), samples::afternoon());
        QCOMPARE(row(deploys, 2).detail, u"Failed · shop · preview"_s);

        CardContent sentry;
        describe(sentry, {.issues = {{.level = u"sample"_s}, {.level = u"fatal"_s}}});
        QVERIFY(row(sentry, 0).detail.startsWith(u"sample"_s)); // a level that is new to us
        QVERIFY(row(sentry, 1).detail.startsWith(u"Fatal"_s));

        CardContent ticker;
        describe(ticker, {{.symbol = u"^NEW/../X"_s, .price = 0.00001234, .previousClose = 0.0}});
        QCOMPARE(row(ticker, 0).value, QString()); // there is nothing to compare with
        QCOMPARE(row(ticker, 0).detail, u"0.00001234"_s);
        QCOMPARE(ticker.address.toEncoded(), "https://finance.yahoo.com/quote/%5ENEW%2F..%2FX");
    }

    void eventsCountDown_data() {
        const Table<WallTime, WallTime, QString, QString, Tone> add("start", "end", "caption", "brief", "tone");
        const auto now = samples::at(15);
        const QString at = card::clock(samples::at(17));
        add("in an hour", now + 60min, now + 90min, u"in 60 min"_s, u"60 min"_s, Tone::neutral);
        add("parts of a minute count", now + 9min + 1s, now + 90min, u"in 10 min"_s, u"10 min"_s, Tone::busy);
        add("later", samples::at(17), samples::at(18), u"at "_s + at, at, Tone::neutral);
        add("begins", now, now + 20min, u"now, 20 min left"_s, u"now"_s, Tone::good);
        add("goes on", now - 5min, samples::at(17), u"now, until "_s + at, u"now"_s, Tone::good);
        add("after midnight", samples::at(17) + 21h, samples::at(17) + 22h,
            u"tomorrow at "_s + card::clock(samples::at(14)), card::clock(samples::at(14)), Tone::neutral);
    }
    void eventsCountDown() {
        QFETCH(const WallTime, start);
        QFETCH(const WallTime, end);
        const CalendarFeed::Event event{.title = u"Review"_s, .start = start, .end = end};
        CardContent card{.state = State::ready};
        describe(card, {event}, event, samples::at(15));
        QTEST(card.caption, "caption");
        QTEST(card.brief, "brief");
        QTEST(card.tone, "tone");
    }

    void callsAreJoinedOnlyOverHttps() {
        auto events = samples::events();
        CardContent safe;
        describe(safe, events, events.first(), samples::at(15));
        QCOMPARE(safe.join, QUrl(u"https://zoom.us/j/1"_s));
        QCOMPARE(row(safe, 0).title, u"Standup"_s); // the next one stands apart
        QCOMPARE(row(safe, 0).address, QUrl(u"https://meet.google.com/abc"_s));
        QCOMPARE(row(safe, 2).value, u"all day"_s);
        events[0].joinURL = QUrl(u"http://zoom.us/j/1"_s);
        events[1].joinURL = QUrl(u"zoommtg://zoom.us/j/1"_s);
        CardContent unsafe;
        describe(unsafe, events, events.first(), samples::at(15));
        QCOMPARE(unsafe.join, QUrl());
        QCOMPARE(row(unsafe, 0).address, QUrl());
    }

    void usageTellsOfItsWindow() {
        CardContent card{.state = State::ready};
        describe(card, samples::usage(), u"~/logs"_s, samples::at(15)); // two of five hours are gone
        QCOMPARE(card.headline, u"1.2M"_s);
        QCOMPARE(card.gauge, 0.4);
        QCOMPARE(card.gaugeText, u"340K tokens until "_s + card::clock(samples::at(18)));
        QCOMPARE(card.gaugeNote, u"170K an hour"_s);
        QCOMPARE(card.gaugeParts.join(u' '), u"340K 170K/h → "_s + card::shortClock(samples::at(18)));
        QCOMPARE(row(card, 0).title, u"Opus 4.1"_s); // the most used first
        QCOMPARE(row(card, 2).title, u"Haiku 3.5"_s);

        usage::Summary summary = samples::usage();
        summary.models = {{u"claude-opus-4-1-20250805"_s, 1}, {u"claude-opus-4-1"_s, 2}, {u"gpt-oss:20b"_s, 1}};
        CardContent later{.state = State::ready};
        describe(later, summary, {}, samples::at(18));
        QVERIFY(later.gauge < 0); // the window is closed
        QCOMPARE(row(later, 0).value, u"3"_s);
        QCOMPARE(row(later, 1).title, u"gpt-oss:20b"_s);

        CardContent none{.state = State::ready};
        describe(none, {}, u"~/logs"_s, samples::at(15));
        QCOMPARE(none.state, State::empty);
        QVERIFY(none.note.contains(u"~/logs"_s));
    }

    void whatIsInACardCanBePressed_data() {
        const Table<CardContent, QString, QByteArray> add("content", "name", "signal");
        const auto made = [](const auto&... values) {
            CardContent card{.state = State::ready};
            describe(card, values...);
            return card;
        };
        const auto events = samples::events();
        add("a call", made(events, std::optional(events.first()), samples::at(15)),
            u"Join Design review of the new dock"_s, "rowPressed(QUrl)");
        add("a tick", made(samples::reminders(), samples::at(15)), u"Water the plants"_s, "toggled(QString,bool)");
        add("a new one", made(samples::reminders(), samples::at(15)), u"Add a reminder"_s, "additionAsked()");
    }
    void whatIsInACardCanBePressed() {
        QFETCH(const CardContent, content);
        QFETCH(const QString, name);
        QFETCH(const QByteArray, signal);
        QTest::failOnWarning(QRegularExpression(u"qrc:"_s));
        for (const QString& size : {u"medium"_s, u"large"_s}) {
            for (const bool isVertical : {false, true}) {
                CardView view(content, size, isVertical);
                QVERIFY(QTest::qWaitForWindowExposed(&view));
                QQuickItem* card = view.rootObject();
                QQuickItem* button = named(name, card);
                QVERIFY2(button, qPrintable(size));
                const QSignalSpy pressed(card, ('2' + signal).constData());
                QTest::mouseClick(&view, Qt::LeftButton, {},
                                  button->mapToScene(QRectF(button->boundingRect()).center()).toPoint());
                QCOMPARE(pressed.count(), 1);
            }
        }
    }

    void aPressOnACircleTicksItsOwnLine() {
        CardContent content{.state = State::ready};
        describe(content, samples::reminders(), samples::at(15));
        CardView view(content, u"large"_s, false);
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        for (int line = 0; line < 3; ++line) {
            const QQuickItem* circle = named(row(content, line).title, view.rootObject());
            QVERIFY(circle);
            const QRectF area = circle->mapRectToScene(circle->boundingRect());
            for (const qreal y : {area.top() + 1, area.bottom() - 1}) {
                const QSignalSpy pressed(view.rootObject(), SIGNAL(toggled(QString, bool)));
                QTest::mouseClick(&view, Qt::LeftButton, {}, QPointF(area.center().x(), y).toPoint());
                QCOMPARE(pressed.value(0).value(0).toString(), row(content, line).id);
            }
        }
    }

    void whatIsTickedStaysSoInAnotherPlace() {
        CardContent content{.state = State::ready};
        describe(content, samples::reminders(), samples::at(15));
        CardView view(content, u"large"_s, false);
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.rootObject()->setProperty("ticked", QStringList{row(content, 0).id, row(content, 1).id});
        const CardRow next = row(content, 1);
        describe(content = {.state = State::ready}, samples::reminders().mid(1), samples::at(15));
        view.rootObject()->setProperty("content", QVariant::fromValue(content));
        const auto isTicked = [&view](const QString& title) {
            return QAccessible::queryAccessibleInterface(named(title, view.rootObject()))->state().checked;
        };
        QVERIFY(isTicked(next.title));
        QVERIFY(!isTicked(row(content, 1).title));
    }

    void cardsCanBeRead() {
        QQmlEngine engine;
        engine.addImportPath(u"qrc:/qml"_s);
        QQmlComponent component(&engine);
        component.setData(
            "import QtQuick; import Fendrel.Style; import Fendrel.Widgets\n"
            "QtObject { id: root; required property bool dark; required property color tint\n"
            "readonly property Colors look: Colors { isDark: root.dark }\n"
            "readonly property CardColors ink: CardColors { colors: root.look; accent: root.tint; textSize: 11 }\n"
            "readonly property var texts: [ink.text, ink.quiet, ink.mark, ink.good, ink.busy, ink.bad]\n"
            "readonly property var dots: Object.values(ink.dots)\n"
            "readonly property var papers: [ink.top, ink.bottom] }",
            {});
        for (const DockWidgetKind& kind : dockWidgetKinds()) {
            for (const bool isDark : {false, true}) {
                const std::unique_ptr<QObject> card(component.createWithInitialProperties(
                    {{u"dark"_s, isDark}, {u"tint"_s, QColor::fromRgb(kind.accent)}}));
                QVERIFY2(card, qPrintable(component.errorString()));
                for (const auto& [name, least] : {std::pair("texts", readableContrast), std::pair("dots", 3.0)})
                    for (const QVariant& front : card->property(name).toList())
                        for (const QVariant& paper : card->property("papers").toList())
                            QVERIFY2(contrastRatio(front.value<QColor>(), paper.value<QColor>()) >= least,
                                     qPrintable(kind.id() + u' ' + front.value<QColor>().name()));
            }
        }
    }
};

QTEST_MAIN(CardsTest)
#include "tst_Cards.moc"
