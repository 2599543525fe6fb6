#include "Widgets/AccountTest.h"

#include "Widgets/Exchange.h"
#include "Widgets/Revenue/DodoClient.h"
#include "Widgets/Revenue/LemonSqueezy.h"
#include "Widgets/Revenue/Paddle.h"
#include "Widgets/Revenue/Stripe.h"
#include "Widgets/Services/GitHub.h"
#include "Widgets/Services/Linear.h"
#include "Widgets/Services/Sentry.h"
#include "Widgets/Services/Vercel.h"

#include <QCoreApplication>

#include <memory>

namespace fendrel {

namespace {

using Service = WidgetAccounts::Service;
using Sales = revenue::Page<Sale>;

QString inWords(const char* text) {
    return QCoreApplication::translate("AccountTest", text);
}

QString missing(const SecretStore::Secret& secret) {
    if (secret)
        return inWords(QT_TRANSLATE_NOOP("AccountTest", "There is no key for it"));
    switch (secret.error()) {
    case SecretStore::Problem::missing:
        return inWords(QT_TRANSLATE_NOOP("AccountTest", "Your desktop has no keyring"));
    case SecretStore::Problem::locked:
        return inWords(QT_TRANSLATE_NOOP("AccountTest", "Your keyring is locked"));
    case SecretStore::Problem::failed:
        break;
    }
    return inWords(QT_TRANSLATE_NOOP("AccountTest", "Your keyring doesn't work"));
}

/// What its widget asks: a key may be good and still not allow enough. Of sales only those from now on, a page at most.
Handle ask(Service service, const QString& key, HttpClient& http, WallTime now, const AccountTestDone& done) {
    const auto tell = [done, service](const auto& fetched) {
        done(fetched ? std::nullopt
                     : std::optional(message(fetched.error(), WidgetAccounts::description(service).name)));
    };
    switch (service) {
    case Service::github:
        return github::fetch(http, key, tell);
    case Service::stripe:
        return exchange<Sales>(
            http, stripe::transactionsRequest(key, now),
            [=](const HttpResponse& response) { return stripe::readTransactions(response, key, now); }, tell);
    case Service::lemonSqueezy: {
        const auto request = lemonsqueezy::ordersRequest(key, false); // the form that every key may ask in
        return exchange<Sales>(
            http, request,
            [=](const HttpResponse& response) { return lemonsqueezy::readOrders(response, request, now); }, tell);
    }
    case Service::paddle: {
        const auto request = paddle::transactionsRequest(key, now);
        return exchange<Sales>(
            http, request, [=](const HttpResponse& response) { return paddle::readTransactions(response, request); },
            tell);
    }
    case Service::dodo:
        return dodo::Client(http).fetch(key, now, tell);
    case Service::vercel:
        return vercel::fetch(http, key, tell);
    case Service::linear:
        return linear::Client(http).fetch(key, tell);
    case Service::sentry:
        return sentry::fetch(http, key, tell);
    }
    return {};
}

} // namespace

Handle testAccount(Service service, const WidgetAccounts& accounts, HttpClient& http, WallTime now,
                   AccountTestDone done) {
    const auto step = std::make_shared<Handle>();
    *step = accounts.secret(service, [service, &http, now, step, done = std::move(done)](const auto& secret) {
        if (!secret || !*secret)
            done(missing(secret));
        else if (!http.isOnline())
            done(inWords(QT_TRANSLATE_NOOP("AccountTest", "There is no network connection")));
        else
            *step = ask(service, **secret, http, now, done);
    });
    return lastOf(step);
}

} // namespace fendrel
