#include "Table.h"
#include "Widgets/Calendar/JoinLink.h"
#include "Widgets/Widgets.h"
#include "fakes/FakeCalendarStore.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeHttp.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Access = CalendarStore::Access;

namespace {

struct World {
    FakeClock clock; ///< Monday, 10:00 in Berlin
    FakeHttp http;
    FakeSettings settings;
    FakeSecretStore secrets;
    FakeCalendarStore store;
    WidgetAccounts accounts{secrets};
    Widgets widgets{clock, http, settings, store, accounts, {}};
    CalendarFeed& calendar = widgets.calendar();
    RemindersFeed& reminders = widgets.reminders();

    CalendarEvent event(const QString& title, std::chrono::minutes start, std::chrono::minutes length) const {
        return {.id = title, .title = title, .start = clock.now() + start, .end = clock.now() + start + length};
    }
    QString next(std::chrono::minutes in) const {
        const auto found = calendar.next(clock.now() + in);
        return found ? found->title : QString();
    }
    QStringList items() const {
        QStringList titles;
        for (const auto& each : reminders.items())
            titles.append(each.title);
        return titles;
    }
    qsizetype answered() {
        store.answerAll();
        return std::exchange(store.asked, {}).size();
    }
};

} // namespace

class CalendarFeedsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aLinkToACall_data() {
        const Table<QString, QString, QString, QString> row("url", "location", "notes", "link");
        row("capital letters", u"https://MEET.Google.com/Abc-Def"_s, {}, {}, u"https://meet.google.com/Abc-Def"_s);
        row("a company's own", {}, u"https://acme.zoom.us/j/1?pwd=x"_s, {}, u"https://acme.zoom.us/j/1?pwd=x"_s);
        row("the address before the rest", u"HTTPS://whereby.com/a"_s, u"https://zoom.us/j/2"_s,
            u"https://zoom.us/j/3"_s, u"https://whereby.com/a"_s);
        row("the first that is a call", u"https://example.org/agenda"_s, u"Room 4"_s,
            u"Agenda: http://example.org, call: https://teams.live.com/meet/9."_s, u"https://teams.live.com/meet/9"_s);
        row("HTML", {}, {}, u"<p>Join: <a href=\"https://teams.microsoft.com/l/meet?a=1&amp;b=2\">here</a></p>"_s,
            u"https://teams.microsoft.com/l/meet?a=1&b=2"_s);
        row("HTML in HTML", {}, {}, u"&lt;a href=&quot;https://acme.webex.com/m?x=1&amp;y=2&quot;&gt;"_s,
            u"https://acme.webex.com/m?x=1&y=2"_s);
        row("in brackets", {}, u"Online (https://meet.jit.si/Standup)"_s, {}, u"https://meet.jit.si/Standup"_s);
        row("a host that only ends so", {}, {}, u"https://evilzoom.us/j/1"_s, {});
        row("a host that only begins so", {}, {}, u"https://zoom.us.evil.com/j/1"_s, {});
        row("a name in front of the host", {}, {}, u"https://zoom.us@evil.com/j/1"_s, {});
        row("another protocol", u"zoommtg://zoom.us/join"_s, u"ftp://zoom.us/x"_s, u"zoom.us/j/1"_s, {});
    }
    void aLinkToACall() {
        QFETCH(const QString, url);
        QFETCH(const QString, location);
        QFETCH(const QString, notes);
        const auto found = joinURL({.location = location, .notes = notes, .url = url});
        QTEST(found ? found->toString(QUrl::FullyEncoded) : QString(), "link");
    }

    void eventsAreReadWhileTheyShow() {
        World world;
        world.store.onChanged();
        world.clock.advance(1h);
        QCOMPARE(world.answered(), 0);
        world.calendar.refresh(false); // somebody else wants to know
        world.store.onChanged();       // and who was to answer may have gone
        QCOMPARE(world.answered(), 2);

        world.calendar.setActive(true);
        QCOMPARE(world.store.asked.value(0).first, world.clock.now());
        QCOMPARE(world.store.asked.value(0).second, world.clock.now() + 24h);
        QCOMPARE(world.answered(), 1);
        world.store.onChanged();
        QCOMPARE(world.answered(), 1);
        for (int minute = 0; minute < 10; ++minute) {
            world.clock.advance(1min);
            world.store.answerAll();
        }
        QVERIFY(world.answered() >= 9);
        world.calendar.setActive(false);
        world.clock.advance(1h);
        world.store.onChanged();
        QCOMPARE(world.answered(), 0);
    }

    void theNextEvent() {
        World world;
        auto declined = world.event(u"declined"_s, 5min, 10min);
        declined.isDeclined = true;
        auto holiday = world.event(u"holiday"_s, -600min, 24h);
        holiday.isAllDay = true;
        world.store.eventItems = {holiday, world.event(u"later"_s, 120min, 60min), declined,
                                  world.event({}, 30min, 60min), world.event(u"long"_s, -60min, 100min)};
        world.calendar.setActive(true);
        world.store.answerAll();
        QCOMPARE(world.calendar.upcoming().size(), 4);
        QCOMPARE(world.next(0min), u"long"_s);
        QCOMPARE(world.next(35min), u"Untitled event"_s); // both are under way
        QCOMPARE(world.next(95min), u"later"_s);
        QCOMPARE(world.next(180min), u"holiday"_s);
    }

    void whatFailsKeepsTheLast_data() {
        const Table<Access, qsizetype> row("failure", "left");
        row("this time", Access::granted, 1);
        row("access was taken", Access::denied, 0);
        row("the store is gone", Access::missing, 0);
    }
    void whatFailsKeepsTheLast() {
        World world;
        world.store.eventItems = {world.event(u"one"_s, 5min, 10min)};
        world.store.reminderItems = {{.id = u"1"_s, .due = world.clock.now()}};
        world.calendar.setActive(true);
        world.reminders.setActive(true);
        world.store.answerAll();
        QFETCH(const Access, failure);
        world.store.failure = failure;
        world.store.onChanged();
        world.store.answerAll();
        QTEST(world.calendar.upcoming().size(), "left");
        QTEST(world.reminders.items().size(), "left");
        QVERIFY(!world.calendar.isLoading());
    }

    void remindersOfToday() {
        World world;
        const auto at = [&](const QString& title, std::chrono::minutes in, bool hasTime) {
            return CalendarReminder{.id = title, .title = title, .due = world.clock.now() + in, .hasTime = hasTime};
        };
        world.store.reminderItems = {at(u"late"_s, 60min, true), at(u"early"_s, 10min, true), at({}, 0min, false)};
        world.reminders.setActive(true);
        const WallTime midnight = toWallTime(QDate(2026, 1, 5).startOfDay());
        QCOMPARE(world.store.asked.value(0), (std::pair{midnight, midnight + 24h}));
        world.store.answerAll();
        QCOMPARE(world.items(), (QStringList{u"Untitled"_s, u"early"_s, u"late"_s}));

        world.answered();
        world.clock.advance(14h + 1s); // the day has turned
        QCOMPARE(world.store.asked.value(0), (std::pair{midnight + 24h, midnight + 48h}));
        world.answered();
        world.reminders.setActive(false);
        world.clock.advance(48h);
        QCOMPARE(world.answered(), 0);
    }

    void remindersAreChanged() {
        World world;
        world.store.reminderItems = {{.id = u"a"_s, .title = u"a"_s, .due = world.clock.now()}};
        world.reminders.setActive(true);
        world.store.answerAll();
        world.reminders.add(u"  "_s);
        QCOMPARE(world.answered(), 1);
        world.reminders.add(u" buy milk "_s);
        world.store.answerAll();
        QCOMPARE(world.items(), (QStringList{u"buy milk"_s, u"a"_s}));
        QVERIFY(world.store.reminderItems.last().due == toWallTime(QDate(2026, 1, 5).startOfDay()));

        world.reminders.refresh(true); // its answer is on the way, and still has it
        world.reminders.complete(u"a"_s);
        bool isBack = false;
        connect(&world.reminders, &WidgetFeed::changed, &world.reminders,
                [&] { isBack |= world.items().contains(u"a"_s); });
        world.store.answerAll();
        QVERIFY(!isBack);
        QCOMPARE(world.items(), QStringList{u"buy milk"_s});

        world.store.failure = Access::granted;
        world.reminders.complete(u"buy milk"_s);
        world.store.answerAll();
        world.store.failure.reset();
        world.store.onChanged();
        world.store.answerAll();
        QCOMPARE(world.items(), QStringList{u"buy milk"_s}); // it could not be saved
    }

    void theChosenFolder() {
        World world;
        world.settings.values[CalendarFeed::settingKey] = u"/calendars"_s;
        world.widgets.reload();
        QCOMPARE(world.store.chosen, u"/calendars"_s);
        world.widgets.reset({CalendarFeed::settingKey});
        QCOMPARE(world.store.chosen, QString());
    }
};

QTEST_GUILESS_MAIN(CalendarFeedsTest)
#include "tst_CalendarFeeds.moc"
