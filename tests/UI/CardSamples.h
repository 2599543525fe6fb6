#pragma once

#include "UI/Widgets/Cards.h"
#include "fakes/FakeCalendarStore.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeHttp.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSettings.h"

#include <QTimeZone>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

/// The feeds over services that answer when told to.
struct CardWorld {
    CardWorld() { settings.values[WeatherFeed::settingKey] = weather::encode({.name = u"Berlin"_s}); }

    void connect(const QStringList& services) {
        for (const QString& service : services)
            store.secrets[service] = u"key"_s;
    }
    void show(DockWidget widget) {
        widgets.sync(Mode{.id = u"work"_s, .widgets = {enumName(widget)}});
        turn();
    }
    void turn() {
        clock.advance({});
        store.answer();
        clock.advance({});
    }
    CardContent card(DockWidget widget) const { return cardContent(widgets, accounts, widget, clock.now()); }

    FakeClock clock;
    FakeHttp http;
    FakeSettings settings;
    FakeSecretStore store;
    WidgetAccounts accounts{store};
    FakeCalendarStore calendar;
    Widgets widgets{clock, http, settings, calendar, accounts, {}};
};

/// What an afternoon in a small company looks like.
namespace samples {

inline WallTime afternoon() {
    return toWallTime(QDateTime(QDate(2026, 1, 5), QTime(15, 24)));
}
inline WallTime at(int hour, int minute = 0) {
    return toWallTime(QDateTime(QDate(2026, 1, 5), QTime(hour, minute)));
}

inline github::Snapshot pullRequests() {
    using enum github::CI;
    const auto request = [](const QString& title, int number, const QString& repository, std::optional<github::CI> ci) {
        return github::PullRequest{
            .title = title,
            .url = QUrl(u"https://github.com/%1/pull/%2"_s.arg(repository, QString::number(number))),
            .number = number,
            .repository = repository,
            .ci = ci};
    };
    return {.login = u"ada"_s,
            .own = {request(u"Draw the dock before its icons are read"_s, 412, u"acme/shop"_s, running),
                    request(u"Drop the old cache"_s, 398, u"acme/shop"_s, passing)},
            .ownCount = 2,
            .reviews = {request(u"Retry payments that time out"_s, 407, u"acme/billing"_s, {}),
                        request(u"Faster search in large catalogs"_s, 415, u"acme/shop"_s, {}),
                        request(u"Update the style guide"_s, 88, u"acme/docs"_s, {})},
            .reviewCount = 3};
}

inline QList<vercel::Deploy> deploys() {
    using enum vercel::State;
    return {{.project = u"shop"_s,
             .state = building,
             .target = u"production"_s,
             .created = at(15, 21),
             .inspector = QUrl(u"https://vercel.com/acme/shop/1"_s),
             .commitMessage = u"Faster search in large catalogs"_s},
            {.project = u"docs"_s,
             .state = ready,
             .target = u"preview"_s,
             .created = at(14, 40),
             .inspector = QUrl(u"https://vercel.com/acme/docs/1"_s),
             .commitMessage = u"Update the style guide"_s},
            {.project = u"shop"_s,
             .state = error,
             .target = u"preview"_s,
             .created = at(12, 2),
             .inspector = QUrl(u"https://vercel.com/acme/shop/2"_s),
             .commitMessage = u"Try the new bundler"_s},
            {.project = u"shop"_s,
             .state = ready,
             .target = u"production"_s,
             .created = at(9, 12),
             .inspector = QUrl(u"https://vercel.com/acme/shop/3"_s),
             .commitMessage = u"Drop the old cache"_s}};
}

inline QList<linear::Issue> issues() {
    const auto issue = [](const QString& id, const QString& title, int priority, QDate due, bool isStarted) {
        return linear::Issue{.identifier = id,
                             .title = title,
                             .url = QUrl(u"https://linear.app/acme/issue/"_s + id),
                             .priority = priority,
                             .dueDate = due,
                             .stateName = isStarted ? u"In Progress"_s : u"Todo"_s,
                             .stateType = isStarted ? u"started"_s : u"unstarted"_s};
    };
    return {issue(u"ENG-212"_s, u"Payments that time out are tried again"_s, 1, QDate(2026, 1, 5), true),
            issue(u"ENG-198"_s, u"Search feels slow with 10,000 products"_s, 2, {}, true),
            issue(u"ENG-220"_s, u"Invoices in the customer's language"_s, 2, QDate(2026, 1, 3), false),
            issue(u"ENG-201"_s, u"Tidy up the style guide"_s, 4, QDate(2026, 1, 9), false),
            issue(u"ENG-177"_s, u"Dark mode for the receipts"_s, 0, {}, false)};
}

inline sentry::Snapshot errors() {
    const auto issue = [](const QString& id, const QString& title, const QString& level, qint64 events, qint64 users) {
        return sentry::Issue{.shortId = id,
                             .title = title,
                             .culprit = u"cart in total"_s,
                             .level = level,
                             .permalink = QUrl(u"https://acme.sentry.io/issues/1/"_s),
                             .events = events,
                             .users = users};
    };
    return {.issues = {issue(u"SHOP-1"_s, u"TypeError: total is undefined"_s, u"error"_s, 1204, 87),
                       issue(u"SHOP-2"_s, u"Timeout while charging a card"_s, u"warning"_s, 312, 40),
                       issue(u"SHOP-3"_s, u"Slow query: products"_s, u"info"_s, 120, 0)},
            .total = 37};
}

inline RevenueDay day() {
    using enum WidgetAccounts::Service;
    const auto sale = [](WidgetAccounts::Service service, qint64 amount, const QString& currency, WallTime created,
                         const QString& customer = {}) {
        return ServiceSale{service, {{amount, currency}, created, customer}};
    };
    return revenueDay(QDate(2026, 1, 5), QTimeZone::systemTimeZone(),
                      {sale(stripe, 4900, u"EUR"_s, at(1, 10)), sale(stripe, 9900, u"EUR"_s, at(7, 30)),
                       sale(paddle, 14900, u"EUR"_s, at(8, 5)), sale(stripe, 29900, u"EUR"_s, at(9, 45)),
                       sale(lemonSqueezy, 4900, u"USD"_s, at(11, 20), u"Grace Hopper"_s),
                       sale(stripe, 9900, u"EUR"_s, at(12, 5)), sale(stripe, -4900, u"EUR"_s, at(13, 15)),
                       sale(stripe, 29900, u"EUR"_s, at(14, 2)), sale(paddle, 24900, u"EUR"_s, at(15, 20))},
                      {{u"USD"_s, 1}, {u"EUR"_s, 0.9}});
}

inline weather::Report weather() {
    weather::Report report{.temperature = 3.4, .felt = 0, .code = 2, .isDay = true, .high = 5.2, .low = -2.4};
    const int codes[] = {2, 3, 61, 61, 71, 3, 1, 0, 0, 0, 45, 45};
    for (int hour = 0; hour < 12; ++hour)
        report.hours.append({.time = at(15) + std::chrono::hours(hour),
                             .temperature = 3.4 - 0.6 * hour,
                             .code = codes[hour],
                             .isDay = hour < 2});
    return report;
}

inline QList<ticker::Quote> quotes() {
    const auto quote = [](const QString& symbol, double price, double close, const QList<double>& points) {
        return ticker::Quote{.symbol = symbol,
                             .name = symbol,
                             .price = price,
                             .previousClose = close,
                             .currency = u"USD"_s,
                             .points = points};
    };
    return {
        quote(u"AAPL"_s, 271.5, 268, {268, 268.5, 268.2, 269.4, 270, 269.2, 270.4, 271.1, 270.6, 271.5}),
        quote(u"^GSPC"_s, 6902.05, 6932.3, {6932, 6940, 6930, 6921, 6925, 6911, 6903, 6908, 6899, 6902}),
        quote(u"BTC-USD"_s, 91240.11, 90120, {90120, 90320, 89900, 90010, 90600, 91500, 91200, 91100, 91340, 91240}),
        quote(u"EURUSD=X"_s, 1.17, 1.17, {1.17, 1.171, 1.17, 1.17})};
}

inline usage::Summary usage(bool isOpen = true) {
    QList<qint64> hours(24, 1'240'000);
    for (const auto& [hour, tokens] :
         {std::pair(9, 0), {10, 120'000}, {11, 290'000}, {12, 610'000}, {13, 610'000}, {14, 900'000}})
        std::fill(hours.begin() + (hour == 9 ? 0 : hour), hours.begin() + hour + 1, tokens);
    usage::Summary summary{.tokensToday = 1'240'000,
                           .outputToday = 64'000,
                           .messagesToday = 214,
                           .cumulativeByHour = hours,
                           .models = {{u"claude-opus-4-1-20250805"_s, 810'000},
                                      {u"claude-sonnet-4-5-20250929"_s, 410'000},
                                      {u"claude-3-5-haiku-20241022"_s, 20'000}},
                           .hasLogs = true};
    if (isOpen)
        summary.window = usage::Window{.start = at(13), .tokens = 340'000, .messages = 61};
    return summary;
}

inline QList<CalendarFeed::Event> events() {
    const auto event = [](const QString& title, WallTime start, int minutes, const QString& location,
                          const char* call) {
        return CalendarFeed::Event{.id = title,
                                   .title = title,
                                   .start = start,
                                   .end = start + std::chrono::minutes(minutes),
                                   .location = location,
                                   .joinURL = *call ? std::optional(QUrl(QString::fromLatin1(call))) : std::nullopt};
    };
    auto day = event(u"Ada's birthday"_s, at(0), 24 * 60, {}, "");
    day.isAllDay = true;
    return {event(u"Design review of the new dock"_s, at(15, 36), 44, u"Room 4"_s, "https://zoom.us/j/1"),
            event(u"Standup"_s, at(16, 30), 15, {}, "https://meet.google.com/abc"),
            event(u"Dentist"_s, at(17, 45), 60, u"Main Street 5"_s, ""), day};
}

inline QList<RemindersFeed::Item> reminders() {
    return {{.id = u"1"_s, .title = u"Water the plants"_s, .due = at(0)},
            {.id = u"2"_s, .title = u"Call the landlord about the heating"_s, .due = at(14), .hasTime = true},
            {.id = u"3"_s, .title = u"Send the invoice"_s, .due = at(18, 30), .hasTime = true},
            {.id = u"4"_s, .title = u"Milk"_s, .due = at(19), .hasTime = true}};
}

} // namespace samples

} // namespace fendrel
