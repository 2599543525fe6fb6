#include "Widgets/Widgets.h"

#include <algorithm>

namespace fendrel {

using namespace std::chrono_literals;
using Service = WidgetAccounts::Service;

Widgets::Widgets(Clock& clock, HttpClient& http, SettingsStore& settings, WidgetAccounts& accounts)
    : m_accounts(accounts),
      m_linearClient(http),
      m_github(Service::github, accounts, clock, http, 300s,
               [&http](const QString& key, auto done) { return github::fetch(http, key, std::move(done)); }),
      m_revenue(accounts, clock, http, settings),
      m_deploys(Service::vercel, accounts, clock, http, 120s,
                [&http](const QString& key, auto done) { return vercel::fetch(http, key, std::move(done)); }),
      m_linear(Service::linear, accounts, clock, http, 300s,
               [this](const QString& key, auto done) { return m_linearClient.fetch(key, std::move(done)); }),
      m_sentry(Service::sentry, accounts, clock, http, 300s,
               [&http](const QString& key, auto done) { return sentry::fetch(http, key, std::move(done)); }),
      m_weather(clock, http, settings),
      m_ticker(clock, http, settings),
      m_feeds{{DockWidget::github, &m_github}, {DockWidget::revenue, &m_revenue}, {DockWidget::deploys, &m_deploys},
              {DockWidget::linear, &m_linear}, {DockWidget::sentry, &m_sentry},   {DockWidget::weather, &m_weather},
              {DockWidget::ticker, &m_ticker}} {
    // A key that goes takes with it what it brought, whether the widget shows or not.
    m_accounts.onChanged = [this](Service service) {
        for (const auto& [widget, feed] : m_feeds)
            if (WidgetAccounts::usedBy(widget).contains(service))
                feed->refresh(true);
    };
}

Widgets::~Widgets() {
    m_accounts.onChanged = [](Service) {};
}

void Widgets::sync(const Mode& current) {
    for (const auto& [widget, feed] : m_feeds)
        feed->setActive(current.widgets.contains(enumName(widget)));
}

Feed* Widgets::feed(DockWidget widget) {
    const auto found = m_feeds.find(widget);
    return found == m_feeds.end() ? nullptr : found->second;
}

} // namespace fendrel
