#include "Widgets/DockWidget.h"

#include <QCoreApplication>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("DockWidget", text);
}

QList<DockWidgetKind> makeKinds() {
    using enum WidgetSize;
    return {
        {DockWidget::timer,
         WidgetCategory::focus,
         {small, medium},
         0xffe5484d,
         u"timer"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Focus Timer"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget",
                           "Pomodoro: work, then a break. Click to start or pause. Also shows in the menu bar")},
        {DockWidget::clock,
         WidgetCategory::timeAndCalendar,
         {small, medium},
         0xff5b8def,
         u"clock"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Clock"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "The time, where the sun is in the sky, and other time zones")},
        {DockWidget::calendar,
         WidgetCategory::timeAndCalendar,
         {medium, large},
         0xffe5484d,
         u"calendar"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Next Event"),
         QT_TRANSLATE_NOOP("DockWidget", "Calendar"),
         QT_TRANSLATE_NOOP("DockWidget", "Your next event, with a Join button for video calls")},
        {DockWidget::nowPlaying,
         WidgetCategory::media,
         {medium, small, large},
         0xffd6409f,
         u"music.note"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Now Playing"),
         QT_TRANSLATE_NOOP("DockWidget", "Music"),
         QT_TRANSLATE_NOOP("DockWidget", "Music or Spotify with album art. Click to play or pause")},
        {DockWidget::clipboard,
         WidgetCategory::everyday,
         {medium, small, large},
         0xff8e8c99,
         u"doc.on.clipboard"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Clipboard"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "The last 10 things you copied. Click one to copy it again")},
        {DockWidget::note,
         WidgetCategory::everyday,
         {medium, large},
         0xffe2a336,
         u"note.text"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Quick Note"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "A sticky note that belongs to this mode")},
        {DockWidget::github,
         WidgetCategory::building,
         {medium, small, large},
         0xff6e56cf,
         u"arrow.triangle.pull"_s,
         QT_TRANSLATE_NOOP("DockWidget", "GitHub"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Pull requests waiting for your review, and CI on yours")},
        {DockWidget::wordCount,
         WidgetCategory::focus,
         {small},
         0xff3e9b6e,
         u"textformat.characters"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Word Count"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Words in the document you're typing in")},
        {DockWidget::revenue,
         WidgetCategory::business,
         {medium, small, large},
         0xff30a46c,
         u"dollarsign.circle"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Revenue Today"),
         QT_TRANSLATE_NOOP("DockWidget", "Revenue"),
         QT_TRANSLATE_NOOP("DockWidget", "Today's sales from Stripe, Lemon Squeezy, Paddle or Dodo, hour by hour")},
        {DockWidget::system,
         WidgetCategory::system,
         {small, medium},
         0xff3a8fb7,
         u"gauge.with.dots.needle.33percent"_s,
         QT_TRANSLATE_NOOP("DockWidget", "System"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Battery, CPU and memory, with a live graph")},
        {DockWidget::countdown,
         WidgetCategory::timeAndCalendar,
         {small, medium},
         0xfff76b15,
         u"hourglass"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Countdown"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Days to a date you pick, and how much of the day, week and year is gone")},
        {DockWidget::weather,
         WidgetCategory::everyday,
         {small, medium, large},
         0xff2f9ce0,
         u"cloud.sun.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Weather"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Now and the next hours for your city, from Open-Meteo. No location access")},
        {DockWidget::toggles,
         WidgetCategory::system,
         {medium},
         0xff697177,
         u"switch.2"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Quick Toggles"),
         QT_TRANSLATE_NOOP("DockWidget", "Toggles"),
         QT_TRANSLATE_NOOP("DockWidget", "Keep awake, dark mode, hide the desktop and mute, one click each")},
        {DockWidget::shortcuts,
         WidgetCategory::system,
         {medium},
         0xff8e4ec6,
         u"square.stack.3d.up.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Shortcuts"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Run your Apple Shortcuts from the dock. Pin up to four")},
        {DockWidget::reminders,
         WidgetCategory::timeAndCalendar,
         {medium, large},
         0xfff0883e,
         u"checklist"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Reminders"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "What's due today. Tick it off or add one without opening Reminders")},
        {DockWidget::batteries,
         WidgetCategory::system,
         {small, medium},
         0xff46a758,
         u"battery.75percent"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Batteries"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Your Mac, AirPods, mouse and keyboard at a glance")},
        {DockWidget::shelf,
         WidgetCategory::everyday,
         {medium, large},
         0xffa18072,
         u"tray.full.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "File Shelf"),
         QT_TRANSLATE_NOOP("DockWidget", "Shelf"),
         QT_TRANSLATE_NOOP("DockWidget", "Park files here for later: drop them on the card, drag them out")},
        {DockWidget::onAir,
         WidgetCategory::media,
         {small},
         0xffe5484d,
         u"dot.radiowaves.left.and.right"_s,
         QT_TRANSLATE_NOOP("DockWidget", "On Air"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Lights up when any app uses your mic or camera. Mute the mic in one click")},
        {DockWidget::today,
         WidgetCategory::focus,
         {medium, large},
         0xff5b8def,
         u"chart.bar.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Today's Focus"),
         QT_TRANSLATE_NOOP("DockWidget", "Today"),
         QT_TRANSLATE_NOOP("DockWidget",
                           "Time in each mode today, drifts you stopped, and what's left of your budgets")},
        {DockWidget::intention,
         WidgetCategory::focus,
         {medium},
         0xffd97706,
         u"scope"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Intention"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "The one thing you mean to finish in this mode. Tick it off when it's done")},
        {DockWidget::aiUsage,
         WidgetCategory::building,
         {small, medium},
         0xffc0784a,
         u"sparkles"_s,
         QT_TRANSLATE_NOOP("DockWidget", "AI Usage"),
         QT_TRANSLATE_NOOP("DockWidget", "AI"),
         QT_TRANSLATE_NOOP("DockWidget",
                           "Claude Code's tokens today and in your five-hour window, from its logs on this Mac")},
        {DockWidget::deploys,
         WidgetCategory::building,
         {medium, small, large},
         0xff4b5563,
         u"triangle.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Deploys"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Your latest Vercel deploys: building, ready or failed")},
        {DockWidget::linear,
         WidgetCategory::building,
         {medium, small, large},
         0xff5e6ad2,
         u"list.bullet.circle.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Linear"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Linear issues assigned to you, the ones in progress first")},
        {DockWidget::sentry,
         WidgetCategory::building,
         {medium, small, large},
         0xff7c5cbf,
         u"ant.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Sentry"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Unresolved Sentry errors from the last 24 hours, the loudest first")},
        {DockWidget::garden,
         WidgetCategory::focus,
         {small, medium},
         0xff46a758,
         u"leaf.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Focus Garden"),
         QT_TRANSLATE_NOOP("DockWidget", "Garden"),
         QT_TRANSLATE_NOOP("DockWidget", "A plant that grows from a seed to full bloom with your focus time today")},
        {DockWidget::photo,
         WidgetCategory::media,
         {small, medium, large},
         0xff0f9aa8,
         u"photo.on.rectangle"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Photo Frame"),
         QT_TRANSLATE_NOOP("DockWidget", "Photo"),
         QT_TRANSLATE_NOOP("DockWidget", "Pictures from a folder you pick, a new one every ten minutes")},
        {DockWidget::sky,
         WidgetCategory::fun,
         {small, medium},
         0xfff5a524,
         u"sun.horizon.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Sky"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Sunrise, sunset, where the sun is, and the moon's phase for your city")},
        {DockWidget::decide,
         WidgetCategory::fun,
         {small},
         0xffab4aba,
         u"dice.fill"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Decide"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Flip a coin, roll a die, yes or no, or pick from your own list")},
        {DockWidget::daily,
         WidgetCategory::fun,
         {medium},
         0xff7a8b3c,
         u"text.quote"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Daily Line"),
         QT_TRANSLATE_NOOP("DockWidget", "Daily"),
         QT_TRANSLATE_NOOP("DockWidget", "A word, a question or a quote for the day. Offline")},
        {DockWidget::ticker,
         WidgetCategory::business,
         {medium, small, large},
         0xff12a594,
         u"chart.line.uptrend.xyaxis"_s,
         QT_TRANSLATE_NOOP("DockWidget", "Ticker"),
         nullptr,
         QT_TRANSLATE_NOOP("DockWidget", "Stocks, indexes and crypto you pick, with today's move")},
    };
}

} // namespace

QString DockWidgetKind::title() const {
    return translated(sourceTitle);
}

QString DockWidgetKind::shortTitle() const {
    return translated(sourceShortTitle ? sourceShortTitle : sourceTitle);
}

QString DockWidgetKind::detail() const {
    return translated(sourceDetail);
}

const QList<DockWidgetKind>& dockWidgetKinds() {
    static const QList<DockWidgetKind> kinds = makeKinds();
    return kinds;
}

const DockWidgetKind& kind(DockWidget widget) {
    return dockWidgetKinds()[static_cast<int>(widget)];
}

QString title(WidgetCategory category) {
    switch (category) {
    case WidgetCategory::focus:
        return QCoreApplication::translate("DockWidget", "Focus");
    case WidgetCategory::timeAndCalendar:
        return QCoreApplication::translate("DockWidget", "Time & Calendar");
    case WidgetCategory::everyday:
        return QCoreApplication::translate("DockWidget", "Everyday");
    case WidgetCategory::fun:
        return QCoreApplication::translate("DockWidget", "Fun");
    case WidgetCategory::media:
        return QCoreApplication::translate("DockWidget", "Media");
    case WidgetCategory::building:
        return QCoreApplication::translate("DockWidget", "Building");
    case WidgetCategory::business:
        return QCoreApplication::translate("DockWidget", "Business");
    case WidgetCategory::system:
        return QCoreApplication::translate("DockWidget", "System");
    }
    return {};
}

QList<WidgetItem> widgetItems(const QStringList& ids) {
    QList<WidgetItem> items;
    for (const QString& id : ids) {
        const auto widget = enumValue<DockWidget>(id);
        if (widget && std::ranges::find(items, *widget, &WidgetItem::widget) == items.end())
            items.append({.widget = *widget, .size = kind(*widget).sizes.first()});
    }
    return items;
}

} // namespace fendrel
