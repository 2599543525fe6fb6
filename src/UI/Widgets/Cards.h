#pragma once

#include "UI/Widgets/CardContent.h"
#include "Widgets/Widgets.h"

namespace fendrel {

/// What the card of a widget says of its feed. `now` is for ages and for what has gone by. Nothing but `failed` of a
/// widget that has no feed.
CardContent cardContent(const Widgets& widgets, const WidgetAccounts& accounts, DockWidget widget, WallTime now);

// Each of them of values alone; what all cards have in common is left as it is.
void describe(CardContent& card, const github::Snapshot& snapshot);
void describe(CardContent& card, const QList<vercel::Deploy>& deploys, WallTime now);
void describe(CardContent& card, const QList<linear::Issue>& issues, WallTime now);
void describe(CardContent& card, const sentry::Snapshot& snapshot);
void describe(CardContent& card, const RevenueDay& day, WallTime now);
QUrl salesPage(WidgetAccounts::Service service); ///< where a payment provider lists its sales; empty of other services
void describe(CardContent& card, const weather::Report& report, const weather::Place& place, WallTime now);
void describe(CardContent& card, const QList<ticker::Quote>& quotes);
/// `folder`: where logs were looked for, for the user.
void describe(CardContent& card, const usage::Summary& summary, const QString& folder, WallTime now);
/// Those to come or under way, `next` among them.
void describe(CardContent& card, const QList<CalendarFeed::Event>& events,
              const std::optional<CalendarFeed::Event>& next, WallTime now);
void describe(CardContent& card, const QList<RemindersFeed::Item>& items, WallTime now);

} // namespace fendrel
