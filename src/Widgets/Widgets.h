#pragma once

#include "Modes/Mode.h"
#include "Ports/SettingsStore.h"
#include "Widgets/Revenue/RevenueFeed.h"
#include "Widgets/ServiceFeed.h"
#include "Widgets/Services/GitHub.h"
#include "Widgets/Services/Linear.h"
#include "Widgets/Services/Sentry.h"
#include "Widgets/Services/Vercel.h"
#include "Widgets/Ticker/Ticker.h"
#include "Widgets/Weather/WeatherFeed.h"

#include <map>

namespace fendrel {

using GitHubFeed = ServiceFeed<github::Snapshot>;
using DeploysFeed = ServiceFeed<QList<vercel::Deploy>>;
using LinearFeed = ServiceFeed<QList<linear::Issue>>;
using SentryFeed = ServiceFeed<sentry::Snapshot>;

/// Every feed, made once, and which of them run: only those whose widget shows. Main thread.
class Widgets {
public:
    Widgets(Clock& clock, HttpClient& http, SettingsStore& settings, WidgetAccounts& accounts);
    ~Widgets();

    /// To be told which mode is shown, and when its widgets change.
    void sync(const Mode& current);

    /// The settings that are the widgets' own, each with a value of its type.
    static QHash<QString, StoredValue> settings();
    /// Lets defaults apply again; keys that are not its own stay as they are.
    void reset(const QStringList& keys);
    /// Takes over what was changed in the settings themselves.
    void reload();

    /// The feed behind a widget; null for one that asks nobody.
    Feed* feed(DockWidget widget);

    GitHubFeed& github() { return m_github; }
    RevenueFeed& revenue() { return m_revenue; }
    DeploysFeed& deploys() { return m_deploys; }
    LinearFeed& linear() { return m_linear; }
    SentryFeed& sentry() { return m_sentry; }
    WeatherFeed& weather() { return m_weather; }
    Ticker& ticker() { return m_ticker; }
    const GitHubFeed& github() const { return m_github; }
    const RevenueFeed& revenue() const { return m_revenue; }
    const DeploysFeed& deploys() const { return m_deploys; }
    const LinearFeed& linear() const { return m_linear; }
    const SentryFeed& sentry() const { return m_sentry; }
    const WeatherFeed& weather() const { return m_weather; }
    const Ticker& ticker() const { return m_ticker; }

private:
    SettingsStore& m_settings;
    WidgetAccounts& m_accounts;
    linear::Client m_linearClient;
    GitHubFeed m_github;
    RevenueFeed m_revenue;
    DeploysFeed m_deploys;
    LinearFeed m_linear;
    SentryFeed m_sentry;
    WeatherFeed m_weather;
    Ticker m_ticker;
    std::map<DockWidget, Feed*> m_feeds;
};

} // namespace fendrel
