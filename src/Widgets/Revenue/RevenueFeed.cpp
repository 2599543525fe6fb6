#include "Widgets/Revenue/RevenueFeed.h"

#include "Widgets/Exchange.h"
#include "Widgets/Revenue/Paddle.h"
#include "Widgets/Revenue/ProviderRequest.h"
#include "Widgets/Revenue/Stripe.h"

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace std::chrono_literals;

namespace {

WallTime startOf(QDate day) {
    return toWallTime(day.startOfDay(QTimeZone::systemTimeZone()));
}

} // namespace

/// One fetch of all: the keys first, then what is sold with each.
struct RevenueFeed::Round {
    QDate day{};
    std::map<Service, QString> keys{};
    std::map<Service, Handle> requests{};
    qsizetype waiting{};
};

RevenueFeed::RevenueFeed(WidgetAccounts& accounts, Clock& clock, HttpClient& http, SettingsStore& settings)
    : Feed(clock, http, {.interval = 600s, .tolerance = 60s}),
      m_accounts(accounts),
      m_lemonSqueezy(http),
      m_dodo(http),
      m_rates(http, clock, settings) {}

QList<WidgetAccounts::Service> RevenueFeed::connected() const {
    QList<Service> services = WidgetAccounts::usedBy(DockWidget::revenue);
    services.removeIf([this](Service service) { return !m_accounts.connected().contains(service); });
    return services;
}

std::map<WidgetAccounts::Service, RevenueFeed::Outcome> RevenueFeed::results() const {
    std::map<Service, Outcome> results;
    for (const auto& [service, provider] : m_providers)
        results[service] = provider.outcome;
    return results;
}

RevenueDay RevenueFeed::today() const {
    const QDate today = day();
    const WallTime start = startOf(today);
    if (m_today && m_today->first == start)
        return m_today->second;
    QList<ServiceSale> sales;
    bool isCut = false;
    for (const auto& [service, provider] : m_providers) {
        isCut = isCut || (provider.outcome.isCut && provider.day == today);
        for (const Sale& sale : provider.outcome.sales)
            sales.append({.service = service, .sale = sale});
    }
    RevenueDay folded = revenueDay(today, QTimeZone::systemTimeZone(), sales, rates());
    folded.isCut = isCut;
    return m_today.emplace(start, std::move(folded)).second;
}

QDate RevenueFeed::day() const {
    return toDateTime(clock().now()).toTimeZone(QTimeZone::systemTimeZone()).date();
}

QString RevenueFeed::text(const FetchFailure& failure) const {
    QStringList names;
    for (const auto& [service, provider] : m_providers)
        names.append(WidgetAccounts::description(service).name);
    return message(failure, QLocale().createSeparatedList(names));
}

Handle RevenueFeed::fetch() {
    const auto round = std::make_shared<Round>();
    const auto services = WidgetAccounts::usedBy(DockWidget::revenue);
    round->day = day();
    round->waiting = services.size();
    m_midnight = clock().after(startOf(round->day.addDays(1)) - clock().now(), [this] {
        if (isActive())
            refresh(true);
    });
    for (const Service service : services)
        round->requests[service] = m_accounts.key(service, [this, round, service](const std::optional<QString>& key) {
            if (key)
                round->keys[service] = *key;
            if (--round->waiting == 0)
                ask(round);
        });
    return Handle([round] { round->requests.clear(); });
}

void RevenueFeed::ask(const std::shared_ptr<Round>& round) {
    forgetOthers(*round);
    if (round->keys.empty())
        return clear();
    if (!http().isOnline())
        for (const auto& [service, key] : round->keys)
            store(service, Fetched<revenue::Listed<Sale>>::failure(FetchFailure::unreachable()));
    if (!begin())
        return;
    const auto isPaused = [this](const auto& entry) {
        const auto& pause = m_providers[entry.first].notBefore;
        return pause && clock().continuousNow() < *pause;
    };
    std::erase_if(round->keys, isPaused);
    round->waiting = static_cast<qsizetype>(round->keys.size());
    for (const auto& [service, key] : round->keys)
        round->requests[service] = ask(service, key, startOf(round->day),
                                       [this, round, asked = service](const Fetched<revenue::Listed<Sale>>& fetched) {
                                           store(asked, fetched);
                                           if (--round->waiting == 0)
                                               finish(round->day);
                                           else
                                               Q_EMIT changed();
                                       });
    if (round->keys.empty())
        finish(round->day);
}

Handle RevenueFeed::ask(Service service, const QString& key, WallTime since, FetchDone<revenue::Listed<Sale>> done) {
    switch (service) {
    case Service::stripe:
        return stripe::fetch(http(), key, since, std::move(done));
    case Service::lemonSqueezy:
        return m_lemonSqueezy.fetch(key, since, std::move(done));
    case Service::paddle:
        return paddle::fetch(http(), key, since, std::move(done));
    case Service::dodo:
        return m_dodo.fetch(key, since, std::move(done));
    default:
        return {};
    }
}

/// What was sold on another day, or with another key, shows nowhere, not even beside a failure.
void RevenueFeed::forgetOthers(const Round& round) {
    m_today.reset();
    std::erase_if(m_providers, [&round](const auto& entry) { return !round.keys.contains(entry.first); });
    for (const auto& [service, key] : round.keys) {
        Provider& provider = m_providers[service];
        const QByteArray keyDigest = digest(key);
        if (provider.keyDigest != keyDigest)
            provider = {.keyDigest = keyDigest};
        if (provider.day != round.day)
            provider.outcome = {.problem = provider.outcome.problem};
        provider.day = round.day;
    }
}

void RevenueFeed::store(Service service, const Fetched<revenue::Listed<Sale>>& fetched) {
    m_today.reset();
    Provider& provider = m_providers[service];
    provider.isUnreachable = !fetched && fetched.error().kind == FetchFailure::Kind::unreachable;
    provider.outcome.problem.clear();
    if (fetched) {
        provider.outcome.sales = fetched->items;
        provider.outcome.isCut = fetched->isCut;
        provider.outcome.updatedAt = clock().now();
        return;
    }
    provider.outcome.problem = message(fetched.error(), WidgetAccounts::description(service).name);
    if (fetched.error().retryAfter)
        provider.notBefore = clock().continuousNow() + *fetched.error().retryAfter;
}

void RevenueFeed::finish(QDate day) {
    m_rates.refresh(day, [this] {
        m_today.reset();
        Q_EMIT changed();
    });
    const bool isCutOff = std::ranges::all_of(m_providers, [](const auto& each) { return each.second.isUnreachable; });
    isCutOff ? fail(FetchFailure::unreachable()) : succeed();
}

} // namespace fendrel
