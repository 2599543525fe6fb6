#pragma once

#include "Widgets/Revenue/DodoPayments.h"
#include "Widgets/Revenue/ExchangeRates.h"
#include "Widgets/Revenue/LemonSqueezy.h"
#include "Widgets/Revenue/Paddle.h"
#include "Widgets/Revenue/Stripe.h"
#include "Widgets/Services/GitHub.h"
#include "Widgets/Services/Linear.h"
#include "Widgets/Services/Sentry.h"
#include "Widgets/Services/Vercel.h"
#include "Widgets/Ticker/QuoteChart.h"
#include "Widgets/Weather/OpenMeteo.h"

#include <functional>

namespace fendrel {

using namespace Qt::StringLiterals;

/// What was read of an answer.
struct Told {
    QString problem{}; ///< empty: it could be read
    qsizetype items{};
    QList<QUrl> addresses{}; ///< which a card would open
};

/// One of those that read services' answers.
struct AnswerReader {
    QByteArray name{};
    QString recorded{};      ///< an answer of the service's, below tests/data
    qsizetype largestPage{}; ///< items of the longest list that it is asked for
    std::function<Told(const HttpResponse&)> read{};
};

inline QList<AnswerReader> answerReaders() {
    const auto reader = [](const auto& read, const auto& tell) {
        return [=](const HttpResponse& response) {
            const auto fetched = read(response);
            return fetched ? tell(*fetched) : Told{.problem = message(fetched.error(), u"X"_s)};
        };
    };
    const auto list = [](const auto& items) { return Told{.items = items.size()}; };
    const auto page = [](const auto& read) { return Told{.items = read.items.size()}; };
    const auto pulls = [](const github::Snapshot& snapshot) {
        Told told;
        for (const auto& each : snapshot.own + snapshot.reviews)
            told.addresses.append(each.url);
        told.items = told.addresses.size();
        return told;
    };
    const auto deploys = [](const QList<vercel::Deploy>& read) {
        Told told{.items = read.size()};
        for (const auto& each : read)
            told.addresses.append(each.inspector);
        return told;
    };
    const auto issues = [](const auto& read) {
        Told told{.items = read.size()};
        for (const auto& each : read)
            told.addresses.append(each.url);
        return told;
    };
    const auto errors = [](const sentry::Snapshot& snapshot) {
        Told told{.items = snapshot.issues.size()};
        for (const auto& each : snapshot.issues)
            told.addresses.append(each.permalink);
        return told;
    };
    const auto one = [](const auto&) { return Told{.items = 1}; };
    const auto found = [](const auto& place) { return Told{.items = place ? 1 : 0}; };
    const auto hours = [](const weather::Report& report) { return Told{.items = report.hours.size()}; };
    const auto points = [](const std::optional<ticker::Quote>& quote) {
        return Told{.items = quote ? quote->points.size() : 0};
    };

    constexpr WallTime now{
        std::chrono::seconds(1'767'567'600)}; // of the recorded answers: 2026-01-05, midnight in Berlin
    const auto key = u"k"_s;
    const auto orders = lemonsqueezy::ordersRequest(key, true);
    const auto transactions = paddle::transactionsRequest(key, now);
    return {
        {"github", u"services/github.json"_s, 10, reader(github::readSnapshot, pulls)},
        {"vercel", u"services/vercel.json"_s, 10, reader(vercel::readDeploys, deploys)},
        {"linear", u"services/linear.json"_s, 50, reader(linear::readIssues, issues)},
        {"sentryOrganizations", u"services/sentry-organizations.json"_s, 2, reader(sentry::readOrganization, one)},
        {"sentry", u"services/sentry-issues.json"_s, 5, reader(sentry::readIssues, errors)},
        {"forecast", u"services/forecast.json"_s, 48,
         reader([=](const auto& response) { return weather::readForecast(response, now); }, hours)},
        {"search", u"services/search.json"_s, 1, reader(weather::readSearch, found)},
        {"chart", u"services/chart.json"_s, 96,
         reader([](const auto& response) { return ticker::readChart(response, u"X"_s); }, points)},
        {"rates", u"revenue/rates.json"_s, 0, reader(readRates, list)},
        {"stripe", u"revenue/stripe.json"_s, 100,
         reader([=](const auto& response) { return stripe::readTransactions(response, key, now); }, page)},
        {"lemonSqueezy", u"revenue/lemonsqueezy.json"_s, 100,
         reader([=](const auto& response) { return lemonsqueezy::readOrders(response, orders, now); }, page)},
        {"paddle", u"revenue/paddle.json"_s, 30,
         reader([=](const auto& response) { return paddle::readTransactions(response, transactions); }, page)},
        {"dodo", u"revenue/dodo-payments.json"_s, 100,
         reader([=](const auto& response) { return dodo::readPayments(response, transactions); }, page)},
        {"dodoRefunds", u"revenue/dodo-refunds.json"_s, 100,
         reader([=](const auto& response) { return dodo::readRefunds(response, transactions); }, page)},
        {"dodoSettlement", u"revenue/dodo-settlement.json"_s, 0,
         [](const HttpResponse& response) {
             const auto read = dodo::readSettlement(response);
             return read ? Told{.items = 1} : Told{.problem = u"none"_s};
         }},
    };
}

} // namespace fendrel
