#include "Widgets/Widgets.h"

#include "Widgets/WidgetSizes.h"

#include <algorithm>

namespace fendrel {

using namespace std::chrono_literals;
using Service = WidgetAccounts::Service;

Widgets::Widgets(Clock& clock, HttpClient& http, SettingsStore& settings, CalendarStore& calendar,
                 WidgetAccounts& accounts, const QStringList& usageRoots)
    : m_settings(settings),
      m_calendarStore(calendar),
      m_accounts(accounts),
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
      m_calendar(calendar, clock),
      m_reminders(calendar, clock),
      m_aiUsage(clock, usageRoots),
      m_feeds{{DockWidget::github, &m_github},       {DockWidget::revenue, &m_revenue},
              {DockWidget::deploys, &m_deploys},     {DockWidget::linear, &m_linear},
              {DockWidget::sentry, &m_sentry},       {DockWidget::weather, &m_weather},
              {DockWidget::ticker, &m_ticker},       {DockWidget::calendar, &m_calendar},
              {DockWidget::reminders, &m_reminders}, {DockWidget::aiUsage, &m_aiUsage}} {
    m_calendarStore.onChanged = [this] {
        m_calendar.storeChanged();
        m_reminders.storeChanged();
    };
    chooseCalendar();
    // A key that goes takes with it what it brought, whether the widget shows or not.
    m_accounts.onChanged = [this](Service service) {
        for (const auto& [widget, feed] : m_feeds)
            if (WidgetAccounts::usedBy(widget).contains(service))
                static_cast<Feed*>(feed)->refreshForNewKey(); // whatever has a key asks a service
    };
}

Widgets::~Widgets() {
    m_calendarStore.onChanged = [] {};
    m_accounts.onChanged = [](Service) {};
}

void Widgets::sync(const Mode& current) {
    const QList<WidgetItem> items = widgetItems(current.widgets);
    const auto isPlaced = [&items](DockWidget widget) {
        return std::ranges::find(items, widget, &WidgetItem::widget) != items.end();
    };
    // Their cards say whether there is a key.
    if (std::ranges::any_of(items, [](const auto& item) { return !WidgetAccounts::usedBy(item.widget).isEmpty(); }))
        m_accounts.read();
    for (const auto& [widget, feed] : m_feeds)
        feed->setActive(isPlaced(widget));
}

QHash<QString, StoredValue> Widgets::settings() {
    return {{WidgetSizes::settingKey, QByteArray()},
            {WeatherFeed::settingKey, QByteArray()},
            {Ticker::settingKey, QStringList()},
            {CalendarFeed::settingKey, QString()}};
}

void Widgets::reset(const QStringList& keys) {
    bool isChanged = false;
    for (const auto& [key, kind] : settings().asKeyValueRange()) {
        isChanged |= keys.contains(key);
        if (keys.contains(key))
            m_settings.remove(key);
    }
    if (isChanged)
        reload();
}

void Widgets::chooseCalendar() {
    m_calendarStore.choose({.folder = m_settings.read<QString>(CalendarFeed::settingKey).value_or(QString())});
}

void Widgets::reload() {
    chooseCalendar();
    m_weather.reload();
    m_ticker.reload();
}

WidgetFeed* Widgets::feed(DockWidget widget) {
    const auto found = m_feeds.find(widget);
    return found == m_feeds.end() ? nullptr : found->second;
}

} // namespace fendrel
