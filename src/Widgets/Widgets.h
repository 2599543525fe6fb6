#pragma once

#include "Modes/Mode.h"
#include "Ports/SettingsStore.h"
#include "Widgets/Calendar/CalendarFeed.h"
#include "Widgets/Calendar/RemindersFeed.h"
#include "Widgets/Revenue/RevenueFeed.h"
#include "Widgets/ServiceFeed.h"
#include "Widgets/Services/GitHub.h"
#include "Widgets/Services/Linear.h"
#include "Widgets/Services/Sentry.h"
#include "Widgets/Services/Vercel.h"
#include "Widgets/Ticker/Ticker.h"
#include "Widgets/Usage/AIUsage.h"
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
    /// `usageRoots` are the folders of the coding agent's logs.
    Widgets(Clock& clock, HttpClient& http, SettingsStore& settings, CalendarStore& calendar, WidgetAccounts& accounts,
            const QStringList& usageRoots);
    ~Widgets();

    /// To be told which mode is shown, and when its widgets change.
    void sync(const Mode& current);

    /// The settings that are the widgets' own, each with a value of its type.
    static QHash<QString, StoredValue> settings();
    /// Lets defaults apply again; keys that are not its own stay as they are.
    void reset(const QStringList& keys);
    /// Takes over what was changed in the settings themselves.
    void reload();

    /// The feed behind a widget; null for one that has none.
    WidgetFeed* feed(DockWidget widget);

    GitHubFeed& github() { return m_github; }
    RevenueFeed& revenue() { return m_revenue; }
    DeploysFeed& deploys() { return m_deploys; }
    LinearFeed& linear() { return m_linear; }
    SentryFeed& sentry() { return m_sentry; }
    WeatherFeed& weather() { return m_weather; }
    Ticker& ticker() { return m_ticker; }
    CalendarFeed& calendar() { return m_calendar; }
    RemindersFeed& reminders() { return m_reminders; }
    AIUsage& aiUsage() { return m_aiUsage; }
    const GitHubFeed& github() const { return m_github; }
    const RevenueFeed& revenue() const { return m_revenue; }
    const DeploysFeed& deploys() const { return m_deploys; }
    const LinearFeed& linear() const { return m_linear; }
    const SentryFeed& sentry() const { return m_sentry; }
    const WeatherFeed& weather() const { return m_weather; }
    const Ticker& ticker() const { return m_ticker; }
    const CalendarFeed& calendar() const { return m_calendar; }
    const RemindersFeed& reminders() const { return m_reminders; }
    const AIUsage& aiUsage() const { return m_aiUsage; }

private:
    void chooseCalendar();

    SettingsStore& m_settings;
    CalendarStore& m_calendarStore;
    WidgetAccounts& m_accounts;
    linear::Client m_linearClient;
    GitHubFeed m_github;
    RevenueFeed m_revenue;
    DeploysFeed m_deploys;
    LinearFeed m_linear;
    SentryFeed m_sentry;
    WeatherFeed m_weather;
    Ticker m_ticker;
    CalendarFeed m_calendar;
    RemindersFeed m_reminders;
    AIUsage m_aiUsage;
    std::map<DockWidget, WidgetFeed*> m_feeds;
};

} // namespace fendrel
