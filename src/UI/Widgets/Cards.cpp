#include "UI/Widgets/Cards.h"

#include "UI/ShownPath.h"
#include "UI/Widgets/CardText.h"
#include "Widgets/Usage/UsageRoots.h"

#include <QCoreApplication>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using State = CardContent::State;
using Form = CardContent::Form;
using Service = WidgetAccounts::Service;

namespace {

void say(CardContent& card, State state, const QString& headline, const QString& note = {}) {
    card.state = state;
    card.headline = headline;
    card.note = note;
}

/// Of what has come: whether it is new, and why not.
void frame(CardContent& card, const Feed& feed, const QString& problem, std::optional<WallTime> updated, WallTime now) {
    card.problem = problem;
    if (updated && now - *updated >= 1min && (!problem.isEmpty() || now - *updated > 3 * feed.interval()))
        card.age = QCoreApplication::translate("Card", "%1 ago").arg(card::age(*updated, now));
}

void frame(CardContent& card, const Feed& feed, WallTime now) {
    frame(card, feed, feed.error(), feed.updatedAt(), now);
}

void waitFor(CardContent& card, const Feed& feed) {
    card.problem = feed.error();
    card.state = card.problem.isEmpty() ? State::waiting : State::failed;
}

/// Without a key, or while nobody knows: what the card says instead. False: there is one.
bool lacksKey(CardContent& card, const WidgetAccounts& accounts, const QList<Service>& services,
              const QString& invitation) {
    const auto isConnected = [&](Service service) { return accounts.connected().contains(service); };
    if (std::ranges::any_of(services, isConnected))
        return false;
    const auto trouble =
        std::ranges::find_if(services, [&](Service each) { return accounts.problem(each).has_value(); });
    if (trouble == services.end() && !accounts.isRead())
        card.state = State::waiting;
    else if (trouble == services.end())
        say(card, State::disconnected, invitation);
    else if (accounts.problem(*trouble) == WidgetAccounts::Problem::locked)
        say(card, State::disconnected, QCoreApplication::translate("Card", "Unlock your keyring"),
            QCoreApplication::translate("Card", "The key for this card is in there."));
    else if (accounts.problem(*trouble) == WidgetAccounts::Problem::missing)
        say(card, State::disconnected, QCoreApplication::translate("Card", "No keyring found"),
            QCoreApplication::translate("Card", "Keys are kept there and nowhere else."));
    else
        say(card, State::disconnected, QCoreApplication::translate("Card", "The keyring doesn't answer"));
    return true;
}

/// `tell(value)` describes what a service has said.
template<class Value, class Tell>
void tellOf(CardContent& card, const ServiceFeed<Value>& feed, const WidgetAccounts& accounts, WallTime now,
            const Tell& tell) {
    if (feed.value()) {
        card.state = State::ready;
        frame(card, feed, now);
        tell(*feed.value());
        return;
    }
    const QString name = WidgetAccounts::description(feed.service()).name;
    if (!lacksKey(card, accounts, {feed.service()}, QCoreApplication::translate("Card", "Connect %1").arg(name)))
        waitFor(card, feed);
}

void tellOf(CardContent& card, const RevenueFeed& feed, const WidgetAccounts& accounts, WallTime now) {
    card.form = Form::curve;
    if (lacksKey(card, accounts, WidgetAccounts::usedBy(DockWidget::revenue),
                 QCoreApplication::translate("Card", "Connect a payment provider")))
        return;
    const auto results = feed.results();
    QStringList problems;
    std::optional<WallTime> oldest; // of what did not come again
    for (const auto& [service, outcome] : results) {
        if (outcome.problem.isEmpty())
            continue;
        problems.append(outcome.problem);
        if (outcome.updatedAt && (!oldest || *outcome.updatedAt < *oldest))
            oldest = outcome.updatedAt;
    }
    const RevenueDay day = feed.today();
    const bool isUnknown = !feed.updatedAt() || std::cmp_equal(problems.size(), results.size());
    if (day.entries.isEmpty() && isUnknown) {
        card.problem = problems.isEmpty() ? feed.error() : problems.join(u", "_s);
        card.state = card.problem.isEmpty() ? State::waiting : State::failed;
    } else {
        card.state = State::ready;
        if (problems.isEmpty())
            frame(card, feed, now);
        else
            frame(card, feed, problems.join(u", "_s), oldest, now);
        describe(card, day, now);
        const auto connected = feed.connected();
        if (!day.entries.isEmpty())
            card.address = salesPage(day.entries.first().service);
        else if (!connected.isEmpty())
            card.address = salesPage(connected.first());
    }
}

void tellOf(CardContent& card, const WeatherFeed& feed, WallTime now) {
    card.form = Form::hours;
    card.source = QCoreApplication::translate("Card", "Weather data by Open-Meteo.com");
    card.sourceAddress = QUrl(u"https://open-meteo.com/"_s);
    const auto place = feed.place();
    if (!place && !feed.error().isEmpty()) {
        // That there is no city is no fault, unless looking for one failed.
        const QString invitation = QCoreApplication::translate("Feed", "Pick your city");
        say(card, State::unset, invitation);
        card.problem = feed.error() == invitation ? QString() : feed.error();
    } else if (!place || !feed.report()) {
        waitFor(card, feed);
    } else {
        card.state = State::ready;
        frame(card, feed, now);
        describe(card, *feed.report(), *place, now);
    }
}

void tellOf(CardContent& card, const Ticker& feed, WallTime now) {
    card.form = Form::quotes;
    const auto quotes = feed.quotes();
    if (feed.symbols().isEmpty()) {
        say(card, State::unset, QCoreApplication::translate("Card", "Pick symbols"));
    } else if (quotes.isEmpty()) {
        waitFor(card, feed);
    } else {
        card.state = State::ready;
        frame(card, feed, now);
        describe(card, quotes);
    }
}

/// Until the user lets it be read, or where there is nothing to read. False: it can be.
bool lacksAccess(CardContent& card, CalendarStore::Access access, const char* question, const char* absence) {
    const auto said = [](const char* text) { return QCoreApplication::translate("Card", text); };
    switch (access) {
    case CalendarStore::Access::granted:
        return false;
    case CalendarStore::Access::unknown:
        say(card, State::unasked, said(question), said(QT_TRANSLATE_NOOP("Card", "Press to allow")));
        break;
    case CalendarStore::Access::denied:
        say(card, State::denied, said(QT_TRANSLATE_NOOP("Card", "Fendrel may not read it")),
            said(QT_TRANSLATE_NOOP("Card", "Press to change")));
        break;
    case CalendarStore::Access::missing:
        say(card, State::unset, said(absence), said(QT_TRANSLATE_NOOP("Card", "Press to pick")));
        break;
    }
    return true;
}

void tellOf(CardContent& card, const CalendarFeed& feed, WallTime now) {
    card.form = Form::event;
    if (lacksAccess(card, feed.access(), QT_TRANSLATE_NOOP("Card", "Show your calendar?"),
                    QT_TRANSLATE_NOOP("Card", "No calendar found")))
        return;
    card.problem = feed.error();
    card.state = feed.updatedAt() ? State::ready : card.problem.isEmpty() ? State::waiting : State::failed;
    if (feed.updatedAt())
        describe(card, feed.upcoming(), feed.next(now), now);
}

void tellOf(CardContent& card, const RemindersFeed& feed, WallTime now) {
    card.form = Form::tasks;
    if (lacksAccess(card, feed.access(), QT_TRANSLATE_NOOP("Card", "Show your reminders?"),
                    QT_TRANSLATE_NOOP("Card", "No reminders found")))
        return;
    card.problem = feed.error();
    card.state = feed.updatedAt() ? State::ready : card.problem.isEmpty() ? State::waiting : State::failed;
    if (feed.updatedAt())
        describe(card, feed.items(), now);
}

void tellOf(CardContent& card, const AIUsage& feed, WallTime now) {
    card.form = Form::curve;
    card.state = feed.summary() ? State::ready : State::waiting;
    if (feed.summary())
        describe(card, *feed.summary(), shownPath(usageRoots().value(0)), now);
}

} // namespace

CardContent cardContent(const Widgets& widgets, const WidgetAccounts& accounts, DockWidget widget, WallTime now) {
    CardContent card;
    const auto tellOfService = [&](const auto& feed, const auto& tell) {
        card.isLoading = feed.isLoading();
        tellOf(card, feed, accounts, now, tell);
    };
    switch (widget) {
    case DockWidget::github:
        tellOfService(widgets.github(), [&](const auto& snapshot) { describe(card, snapshot); });
        break;
    case DockWidget::deploys:
        tellOfService(widgets.deploys(), [&](const auto& deploys) { describe(card, deploys, now); });
        break;
    case DockWidget::linear:
        tellOfService(widgets.linear(), [&](const auto& issues) { describe(card, issues, now); });
        break;
    case DockWidget::sentry:
        tellOfService(widgets.sentry(), [&](const auto& snapshot) { describe(card, snapshot); });
        break;
    case DockWidget::revenue:
        card.isLoading = widgets.revenue().isLoading();
        tellOf(card, widgets.revenue(), accounts, now);
        break;
    case DockWidget::weather:
        card.isLoading = widgets.weather().isLoading();
        tellOf(card, widgets.weather(), now);
        break;
    case DockWidget::ticker:
        card.isLoading = widgets.ticker().isLoading();
        tellOf(card, widgets.ticker(), now);
        break;
    // What is on this computer is read again and again, and quickly: no card tells of that.
    case DockWidget::calendar:
        tellOf(card, widgets.calendar(), now);
        break;
    case DockWidget::reminders:
        tellOf(card, widgets.reminders(), now);
        break;
    case DockWidget::aiUsage:
        tellOf(card, widgets.aiUsage(), now);
        break;
    default:
        card.state = State::failed;
    }
    return card;
}

} // namespace fendrel
