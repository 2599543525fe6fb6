#include "Control/WidgetJson.h"

#include "Widgets/Weather/WeatherCode.h"

#include <QJsonArray>
#include <QJsonObject>

namespace fendrel::control::json {

using namespace Qt::StringLiterals;

namespace {

QJsonValue text(const QString& text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonValue text(const QUrl& address) {
    return text(address.toString(QUrl::FullyEncoded));
}

template<class Items, class Read>
QJsonArray list(const Items& items, const Read& read) {
    QJsonArray array;
    for (const auto& each : items)
        array.append(read(each));
    return array;
}

QJsonArray numbers(const auto& values) {
    return list(values, [](auto value) { return QJsonValue(value); });
}

QJsonValue name(std::optional<github::CI> ci) {
    return ci ? QJsonValue(enumName(*ci)) : QJsonValue();
}

QJsonObject object(const github::Snapshot& snapshot) {
    const auto pullRequest = [](const github::PullRequest& each) {
        return QJsonObject{{u"title"_s, each.title},
                           {u"url"_s, text(each.url)},
                           {u"number"_s, each.number},
                           {u"repository"_s, each.repository},
                           {u"ci"_s, name(each.ci)}};
    };
    return {{u"login"_s, snapshot.login},
            {u"own"_s, list(snapshot.own, pullRequest)},
            {u"ownCount"_s, snapshot.ownCount},
            {u"reviews"_s, list(snapshot.reviews, pullRequest)},
            {u"reviewCount"_s, snapshot.reviewCount},
            {u"ci"_s, name(snapshot.ci())}};
}

QJsonArray object(const QList<vercel::Deploy>& deploys) {
    return list(deploys, [](const vercel::Deploy& each) {
        return QJsonObject{{u"project"_s, each.project},           {u"state"_s, enumName(each.state)},
                           {u"target"_s, text(each.target)},       {u"created"_s, json::text(each.created)},
                           {u"inspector"_s, text(each.inspector)}, {u"commitMessage"_s, text(each.commitMessage)}};
    });
}

QJsonArray object(const QList<linear::Issue>& issues) {
    return list(issues, [](const linear::Issue& each) {
        return QJsonObject{{u"identifier"_s, each.identifier},
                           {u"title"_s, each.title},
                           {u"url"_s, text(each.url)},
                           {u"priority"_s, each.priority},
                           {u"dueDate"_s, text(each.dueDate.toString(Qt::ISODate))},
                           {u"stateName"_s, each.stateName},
                           {u"stateType"_s, each.stateType}};
    });
}

QJsonObject object(const sentry::Snapshot& snapshot) {
    const auto issue = [](const sentry::Issue& each) {
        return QJsonObject{{u"shortId"_s, each.shortId},
                           {u"title"_s, each.title},
                           {u"culprit"_s, text(each.culprit)},
                           {u"level"_s, each.level},
                           {u"permalink"_s, text(each.permalink)},
                           {u"events"_s, each.events},
                           {u"users"_s, each.users}};
    };
    return {{u"issues"_s, list(snapshot.issues, issue)}, {u"total"_s, snapshot.total}};
}

/// Amounts are in the minor units that the system knows of the currency, not in those of a service.
QJsonObject object(const Money& money) {
    return {{u"amount"_s, money.amount}, {u"currency"_s, money.currency}};
}

QJsonObject object(const RevenueFeed& feed) {
    QJsonObject services;
    for (const auto& [service, outcome] : feed.results())
        services.insert(enumName(service),
                        QJsonObject{{u"sales"_s, outcome.sales.size()}, {u"problem"_s, text(outcome.problem)}});
    const RevenueDay today = feed.today();
    const auto entry = [](const ServiceSale& each) {
        return QJsonObject{{u"service"_s, enumName(each.service)},
                           {u"money"_s, object(each.sale.money)},
                           {u"created"_s, json::text(each.sale.created)},
                           {u"customer"_s, text(each.sale.customer)}};
    };
    QJsonValue combined;
    if (today.combined)
        combined =
            QJsonObject{{u"money"_s, object(today.combined->money)}, {u"isConverted"_s, today.combined->isConverted}};
    return {{u"services"_s, services},
            {u"sales"_s, today.sales},
            {u"isCut"_s, today.isCut},
            {u"total"_s, list(today.total, [](const Money& money) { return object(money); })},
            {u"combined"_s, combined},
            {u"cumulative"_s, numbers(today.cumulative)},
            {u"cumulativeCurrency"_s, text(today.cumulativeCurrency)},
            {u"entries"_s, list(today.entries, entry)}};
}

QJsonObject object(const WeatherFeed& feed) {
    QJsonObject object;
    if (const auto place = feed.place())
        object.insert(u"place"_s, QJsonObject{{u"name"_s, place->name},
                                              {u"latitude"_s, place->latitude},
                                              {u"longitude"_s, place->longitude},
                                              {u"isGuessed"_s, feed.isPlaceGuessed()}});
    const auto& report = feed.report();
    if (!report)
        return object;
    const auto hour = [](const weather::Hour& each) {
        return QJsonObject{{u"time"_s, json::text(each.time)},
                           {u"temperature"_s, each.temperature},
                           {u"code"_s, each.code},
                           {u"isDay"_s, each.isDay}};
    };
    object.insert(u"report"_s, QJsonObject{{u"temperature"_s, report->temperature},
                                           {u"felt"_s, report->felt},
                                           {u"code"_s, report->code},
                                           {u"title"_s, weather::appearance(report->code, report->isDay).title},
                                           {u"isDay"_s, report->isDay},
                                           {u"high"_s, report->high},
                                           {u"low"_s, report->low},
                                           {u"hours"_s, list(report->hours, hour)},
                                           {u"fetched"_s, json::text(report->fetched)}});
    return object;
}

QJsonObject object(const Ticker& ticker) {
    const auto quote = [](const ticker::Quote& each) {
        return QJsonObject{{u"symbol"_s, each.symbol},
                           {u"name"_s, text(each.name)},
                           {u"price"_s, each.price},
                           {u"previousClose"_s, each.previousClose ? QJsonValue(*each.previousClose) : QJsonValue()},
                           {u"currency"_s, text(each.currency)},
                           {u"points"_s, numbers(each.points)}};
    };
    return {{u"symbols"_s, QJsonArray::fromStringList(ticker.symbols())}, {u"quotes"_s, list(ticker.quotes(), quote)}};
}

QJsonObject object(const usage::Summary& summary) {
    QJsonObject models;
    for (const auto& [model, tokens] : summary.models.asKeyValueRange())
        models.insert(model, tokens);
    QJsonValue window;
    if (summary.window)
        window = QJsonObject{{u"start"_s, json::text(summary.window->start)},
                             {u"end"_s, json::text(summary.window->end())},
                             {u"tokens"_s, summary.window->tokens},
                             {u"messages"_s, summary.window->messages}};
    return {{u"hasLogs"_s, summary.hasLogs},
            {u"tokensToday"_s, summary.tokensToday},
            {u"outputToday"_s, summary.outputToday},
            {u"messagesToday"_s, summary.messagesToday},
            {u"cumulativeByHour"_s, numbers(summary.cumulativeByHour)},
            {u"models"_s, models},
            {u"window"_s, window}};
}

QString name(CalendarStore::Access access) {
    switch (access) {
    case CalendarStore::Access::granted:
        return u"granted"_s;
    case CalendarStore::Access::denied:
        return u"denied"_s;
    case CalendarStore::Access::missing:
        return u"missing"_s;
    case CalendarStore::Access::unknown:
        break;
    }
    return u"unknown"_s;
}

QJsonObject object(const CalendarFeed& feed) {
    const auto event = [](const CalendarFeed::Event& each) {
        return QJsonObject{{u"title"_s, each.title},
                           {u"start"_s, json::text(each.start)},
                           {u"end"_s, json::text(each.end)},
                           {u"isAllDay"_s, each.isAllDay},
                           {u"location"_s, text(each.location)},
                           {u"joinURL"_s, each.joinURL ? text(*each.joinURL) : QJsonValue()}};
    };
    return {{u"access"_s, name(feed.access())}, {u"upcoming"_s, list(feed.upcoming(), event)}};
}

QJsonObject object(const RemindersFeed& feed) {
    const auto item = [](const RemindersFeed::Item& each) {
        return QJsonObject{{u"id"_s, each.id},
                           {u"title"_s, each.title},
                           {u"due"_s, json::text(each.due)},
                           {u"hasTime"_s, each.hasTime}};
    };
    return {{u"access"_s, name(feed.access())}, {u"items"_s, list(feed.items(), item)}};
}

QJsonValue ofService(const auto& feed) {
    return feed.value() ? QJsonValue(object(*feed.value())) : QJsonValue();
}

} // namespace

QJsonValue text(WallTime time) {
    return toDateTime(time).toString(Qt::ISODateWithMs);
}

QJsonValue value(Widgets& widgets, DockWidget widget) {
    switch (widget) {
    case DockWidget::github:
        return ofService(widgets.github());
    case DockWidget::revenue:
        return object(widgets.revenue());
    case DockWidget::deploys:
        return ofService(widgets.deploys());
    case DockWidget::linear:
        return ofService(widgets.linear());
    case DockWidget::sentry:
        return ofService(widgets.sentry());
    case DockWidget::weather:
        return object(widgets.weather());
    case DockWidget::ticker:
        return object(widgets.ticker());
    case DockWidget::calendar:
        return object(widgets.calendar());
    case DockWidget::reminders:
        return object(widgets.reminders());
    case DockWidget::aiUsage:
        return widgets.aiUsage().summary() ? QJsonValue(object(*widgets.aiUsage().summary())) : QJsonValue();
    default:
        return {};
    }
}

} // namespace fendrel::control::json
