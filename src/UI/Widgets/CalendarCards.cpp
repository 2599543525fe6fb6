#include "UI/Widgets/CardText.h"
#include "UI/Widgets/Cards.h"
#include "UI/Widgets/WidgetActions.h"

#include <QCoreApplication>

#include <algorithm>

// Events and reminders.

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Event = CalendarFeed::Event;
using State = CardContent::State;
using Tone = CardContent::Tone;

namespace {

constexpr auto soon = 10min;

struct Countdown {
    QString text{};
    QString brief{};
    Tone tone{};
};

QDate localDay(WallTime time) {
    return toDateTime(time).toLocalTime().date();
}

QString minutes(WallTime::duration left) {
    return QLocale().toString(qint64(std::chrono::ceil<std::chrono::minutes>(left).count()));
}

Countdown countdown(const Event& event, WallTime now) {
    const auto said = [](const char* text) { return QCoreApplication::translate("Card", text); };
    const bool isTomorrow = localDay(event.start) > localDay(now);
    if (event.isAllDay) {
        return isTomorrow
                   ? Countdown{said(QT_TRANSLATE_NOOP("Card", "tomorrow, all day")),
                               said(QT_TRANSLATE_NOOP("Card", "tomorrow"))}
                   : Countdown{said(QT_TRANSLATE_NOOP("Card", "all day")), said(QT_TRANSLATE_NOOP("Card", "today"))};
    }
    const QString start = card::clock(event.start);
    if (event.start <= now) {
        const auto left = event.end - now;
        //: An event that is under way.
        const QString until = left <= 1h ? said(QT_TRANSLATE_NOOP("Card", "now, %1 min left")).arg(minutes(left))
                                         : said(QT_TRANSLATE_NOOP("Card", "now, until %1")).arg(card::clock(event.end));
        return {until, said(QT_TRANSLATE_NOOP("Card", "now")), Tone::good};
    }
    const auto ahead = event.start - now;
    if (ahead <= 1h) {
        return {said(QT_TRANSLATE_NOOP("Card", "in %1 min")).arg(minutes(ahead)),
                said(QT_TRANSLATE_NOOP("Card", "%1 min")).arg(minutes(ahead)),
                ahead <= soon ? Tone::busy : Tone::neutral};
    }
    return {isTomorrow ? said(QT_TRANSLATE_NOOP("Card", "tomorrow at %1")).arg(start)
                       : said(QT_TRANSLATE_NOOP("Card", "at %1")).arg(start),
            start};
}

/// As far as its countdown doesn't say it.
QString timeRange(const Event& event, WallTime now) {
    if (event.isAllDay)
        return {};
    const QString end = card::clock(event.end);
    return event.start - now > 1h ? QCoreApplication::translate("Card", "until %1").arg(end)
                                  : card::clock(event.start) + u" – "_s + end;
}

QUrl openableCall(const Event& event) {
    return event.joinURL && WidgetActions::isOpenable(*event.joinURL) ? *event.joinURL : QUrl();
}

CardRow row(const Event& event, WallTime now) {
    const bool isTomorrow = localDay(event.start) > localDay(now);
    const QString day = isTomorrow ? QCoreApplication::translate("Card", "tomorrow") : QString();
    const QUrl call = openableCall(event);
    return {.title = event.title,
            .detail = card::joined({day, event.location}),
            .value = event.isAllDay ? QCoreApplication::translate("Card", "all day") : card::clock(event.start),
            .symbol = call.isEmpty() ? QString() : u"video"_s,
            .address = call};
}

} // namespace

void describe(CardContent& card, const QList<Event>& events, const std::optional<Event>& next, WallTime now) {
    card.form = CardContent::Form::event;
    if (!next) {
        card.state = State::empty;
        card.headline = QCoreApplication::translate("Card", "Nothing more today");
        return;
    }
    const Countdown time = countdown(*next, now);
    card.headline = next->title;
    card.brief = time.brief;
    card.caption = time.text;
    card.tone = time.tone;
    card.note = card::joined({timeRange(*next, now), next->location});
    card.join = openableCall(*next);
    for (const Event& event : events)
        if (event != *next && event.end > now)
            card.rows.append(QVariant::fromValue(row(event, now)));
}

void describe(CardContent& card, const QList<RemindersFeed::Item>& items, WallTime now) {
    card.form = CardContent::Form::tasks;
    if (items.isEmpty()) {
        card.state = State::empty;
        card.headline = QCoreApplication::translate("Card", "All done for today");
        return;
    }
    const auto isOverdue = [now](const RemindersFeed::Item& item) { return item.hasTime && item.due < now; };
    const auto overdue = static_cast<int>(std::ranges::count_if(items, isOverdue));
    card.headline = QLocale().toString(items.size());
    card.caption = QCoreApplication::translate("Card", "due today");
    card.unit = QCoreApplication::translate("Card", "due");
    if (overdue > 0) {
        card.note = QCoreApplication::translate("Card", "%n overdue", nullptr, overdue);
        card.tone = Tone::busy;
    }
    for (const auto& item : items)
        card.rows.append(QVariant::fromValue(CardRow{.id = item.id,
                                                     .title = item.title,
                                                     .value = item.hasTime ? card::shortClock(item.due) : QString(),
                                                     .tone = isOverdue(item) ? Tone::busy : Tone::neutral}));
}

} // namespace fendrel
