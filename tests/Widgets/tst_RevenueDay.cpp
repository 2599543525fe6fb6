#include "Table.h"
#include "Widgets/Revenue/RevenueDay.h"

#include <QtTest>

#include <limits>

using namespace fendrel;
using namespace Qt::StringLiterals;

using Service = WidgetAccounts::Service;

namespace {

const Rates rates{{u"USD"_s, 1}, {u"EUR"_s, 0.5}, {u"JPY"_s, 100}};

ServiceSale sold(const QString& time, qint64 amount, const QString& currency = u"USD"_s,
                 Service service = Service::stripe) {
    return {.service = service,
            .sale = {.money = {.amount = amount, .currency = currency},
                     .created = toWallTime(QDateTime::fromString(time, Qt::ISODate))}};
}

RevenueDay berlin(const QString& day, const QList<ServiceSale>& sales, const Rates& known = rates) {
    return revenueDay(QDate::fromString(day, Qt::ISODate), QTimeZone("Europe/Berlin"), sales, known);
}

} // namespace

class RevenueDayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void curve_data() {
        const Table<QByteArray, QString, int> row("place", "date", "points");
        row("winter", "Europe/Berlin", u"2026-01-05"_s, 25);
        row("forward", "Europe/Berlin", u"2026-03-29"_s, 24);
        row("back", "Europe/Berlin", u"2026-10-25"_s, 26);
        row("by half an hour", "Australia/Lord_Howe", u"2026-10-04"_s, 25);
        row("without a midnight", "America/Sao_Paulo", u"2018-11-04"_s, 24);
    }
    /// One sale an hour, the first at the beginning and the last a moment before the end.
    void curve() {
        QFETCH(const int, points);
        QFETCH(const QString, date);
        QFETCH(const QByteArray, place);
        const QTimeZone zone(place);
        const QDate day = QDate::fromString(date, Qt::ISODate);
        const WallTime start = toWallTime(day.startOfDay(zone));
        const WallTime end = toWallTime(day.addDays(1).startOfDay(zone));
        QList<ServiceSale> sales{sold({}, 1), sold({}, 1), sold({}, 1000), sold({}, 1000)};
        sales[0].sale.created = start;
        sales[1].sale.created = end - std::chrono::milliseconds(1);
        sales[2].sale.created = start - std::chrono::milliseconds(1);
        sales[3].sale.created = end;
        const auto folded = revenueDay(day, zone, sales, {});
        QCOMPARE(folded.cumulative.size(), points);
        QCOMPARE(folded.cumulative.first(2), (QList<qint64>{0, 1}));
        QCOMPARE(folded.cumulative.last(2), (QList<qint64>{1, 2}));
        QCOMPARE(folded.sales, 2);
    }

    void aRefundLowersTheCurve() {
        const auto day =
            berlin(u"2026-01-05"_s, {sold(u"2026-01-05T14:10:00Z"_s, -500), sold(u"2026-01-05T08:00:00Z"_s, 2000)});
        QCOMPARE(day.cumulative[9], 0);
        QCOMPARE(day.cumulative[10], 2000);
        QCOMPARE(day.cumulative[15], 2000);
        QCOMPARE(day.cumulative[16], 1500);
        QCOMPARE(day.sales, 1);
    }

    void combines_data() {
        const Table<QList<ServiceSale>, Rates, QString> row("sales", "known", "expected");
        const auto at = u"2026-01-05T08:00:00Z"_s;
        const auto dollars = sold(at, 1000);
        const auto euros = sold(at, 1000, u"EUR"_s);
        const auto yen = sold(at, 100, u"JPY"_s);
        row("nothing", {}, rates, u""_s);
        row("one currency needs no rates", {euros, euros}, {}, u"2000 EUR"_s);
        row("the larger worth", {dollars, euros}, rates, u"1500 EUR converted"_s);
        row("other digits", {dollars, dollars, yen}, rates, u"2100 USD converted"_s);
        row("in the one without digits", {sold(at, 10), yen}, rates, u"110 JPY converted"_s);
        row("a rate is missing", {dollars, sold(at, 1, u"QQQ"_s)}, rates, u""_s);
        row("no rates", {dollars, euros}, {}, u""_s);
    }
    void combines() {
        QFETCH(const QList<ServiceSale>, sales);
        QFETCH(const Rates, known);
        const auto day = berlin(u"2026-01-05"_s, sales, known);
        QString told;
        if (day.combined)
            told = u"%1 %2%3"_s.arg(day.combined->money.amount)
                       .arg(day.combined->money.currency, day.combined->isConverted ? u" converted"_s : QString());
        QTEST(told, "expected");
        if (day.combined) {
            QCOMPARE(day.cumulative.last(), day.combined->money.amount);
            QCOMPARE(day.cumulativeCurrency, day.combined->money.currency);
        }
    }

    void withoutRatesEachCurrencyStandsAlone() {
        const auto day = berlin(u"2026-01-05"_s,
                                {sold(u"2026-01-05T08:00:00Z"_s, 1), sold(u"2026-01-05T09:00:00Z"_s, 2, u"EUR"_s),
                                 sold(u"2026-01-05T10:00:00Z"_s, 4, u"EUR"_s, Service::paddle)},
                                {});
        QCOMPARE(day.total, (QList<Money>{{.amount = 6, .currency = u"EUR"_s}, {.amount = 1, .currency = u"USD"_s}}));
        QCOMPARE(day.cumulativeCurrency, u"EUR"_s);
        QCOMPARE(day.cumulative.last(), 6);
        QCOMPARE(day.latest(1).first().service, Service::paddle);
        QCOMPARE(day.latest(99).last().sale.money.amount, 1);
    }

    void sumsDoNotOverflow() {
        QList<ServiceSale> sales(100'000, sold(u"2026-01-05T08:00:00Z"_s, std::numeric_limits<qint64>::max()));
        sales.append(sold(u"2026-01-05T08:00:00Z"_s, 1, u"EUR"_s));
        const auto day = berlin(u"2026-01-05"_s, sales);
        QCOMPARE(day.total.last().amount, std::numeric_limits<qint64>::max());
        QCOMPARE(day.cumulative.last(), day.combined->money.amount);
        QVERIFY(day.combined->money.amount > 0);
    }
};

QTEST_GUILESS_MAIN(RevenueDayTest)
#include "tst_RevenueDay.moc"
