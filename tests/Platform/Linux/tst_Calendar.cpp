// The same expectations of the desktop's calendar server and of a folder of iCalendar files.

#include "Platform/Linux/Calendar/DesktopCalendar.h"
#include "Platform/Linux/CalendarServer.h"
#include "Table.h"
#include "fakes/FakeClock.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Source = CalendarStore::Source;

namespace {

WallTime at(const QString& time) {
    return toWallTime(QDateTime::fromString(time, Qt::ISODate));
}

QByteArray component(const QByteArray& kind, const QByteArray& lines) {
    QByteArray text = "BEGIN:" + kind + "\n" + lines + "END:" + kind + "\n";
    return text.replace("\n", "\r\n");
}

QByteArray calendarOf(const QByteArray& components) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Test//EN\r\nMETHOD:PUBLISH\r\n" + components +
           "END:VCALENDAR\r\n";
}

/// A store over one of the two, in a time that moves on when something is waited for.
struct World {
    World(const QString& folder, const QString& chosen)
        : store(clock, [folder] {
              return CalendarPlaces{.paths = folder.isEmpty() ? QStringList() : QStringList{folder},
                                    .addresses = {u"me@example.org"_s}};
          }) {
        store.onChanged = [this] { ++changes; };
        store.choose({.folder = chosen});
    }

    bool wait(const std::function<bool()>& condition, int milliseconds = 30'000) {
        return QTest::qWaitFor(
            [&] {
                clock.advance(20ms);
                return condition();
            },
            milliseconds);
    }
    template<class Item>
    QList<Item> answer(const std::function<Handle(CalendarStore::Found<Item>)>& ask) {
        QList<Item> items;
        bool isAnswered = false;
        const Handle asking = ask([&](const auto& found) {
            isAnswered = true;
            if (found)
                items = *found;
        });
        return wait([&] { return isAnswered; }) ? items : QList<Item>();
    }
    QList<CalendarEvent> events(const QString& from, const QString& to) {
        return answer<CalendarEvent>([&](auto done) { return store.events(at(from), at(to), done); });
    }
    QList<CalendarReminder> reminders() {
        return answer<CalendarReminder>(
            [&](auto done) { return store.reminders(at(u"2026-01-05T00:00"_s), at(u"2026-01-06T00:00"_s), done); });
    }
    QStringList titles() {
        QStringList list;
        for (const auto& each : reminders())
            list.append(each.title);
        list.sort();
        return list;
    }
    bool saved(const std::function<Handle(CalendarStore::Saved)>& save) {
        std::optional<bool> outcome;
        const Handle saving = save([&](bool isSaved) { outcome = isSaved; });
        return wait([&] { return outcome.has_value(); }) && *outcome;
    }

    FakeClock clock;
    DesktopCalendar store;
    int changes = 0;
};

} // namespace

class CalendarTest : public QObject {
    Q_OBJECT

private:
    CalendarServer m_server;
    QTemporaryDir m_home;
    QString folder() const { return m_home.filePath(u"calendars"_s); }
    World world(Source source) const {
        return World(folder(), source == Source::folders ? folder() : QString()); // the choice outvotes the server
    }
    /// In both, as other programs put it there.
    void put(const QString& name, const QByteArray& components) {
        const QByteArray text = calendarOf(components);
        // What comes as an invitation that was declined is dropped there; what is put there is kept.
        if (components.contains("DECLINED"))
            m_server.call(false, u"CreateObjects"_s, {QStringList{QString::fromUtf8(components)}, 0U});
        else
            m_server.call(components.contains("VTODO"), u"ReceiveObjects"_s, {QString::fromUtf8(text), 0U});
        putFile(folder() + u"/work/"_s + name + u".ics"_s, text);
    }
    QByteArray stored(Source source, const QString& name) {
        return source == Source::folders ? contentOf(folder() + u"/work/"_s + name + u".ics"_s)
                                         : m_server.call(true, u"GetObject"_s, {name, QString()}).toString().toUtf8();
    }
    static void forBoth() {
        const Table<Source> row("source");
        row("server", Source::system);
        row("folder", Source::folders);
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_server.start()); }

    void eventsOfADay_data() {
        QTest::addColumn<Source>("source");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        // 29 March: clocks go forward in Berlin.
        const auto add = [this](const char* name, const QList<QByteArray>& entries, const QString& expected) {
            const QString uid = QString::fromLatin1(name);
            QByteArray components;
            for (const QByteArray& each : entries)
                components +=
                    each.startsWith("BEGIN:") ? each : component("VEVENT", "UID:" + uid.toUtf8() + "\n" + each);
            put(uid, components);
            for (const Source source : {Source::system, Source::folders})
                QTest::addRow("%s, %s", name, source == Source::system ? "server" : "folder")
                    << source << uid << expected;
        };
        const QByteArray ten = "DTSTART;TZID=Europe/Berlin:20260329T100000\nDTEND;TZID=Europe/Berlin:20260329T110000\n";
        const QByteArray daily = "DTSTART;TZID=Europe/Berlin:20260301T100000\n"
                                 "DTEND;TZID=Europe/Berlin:20260301T110000\nRRULE:FREQ=DAILY\n";
        const QByteArray instance = "RECURRENCE-ID;TZID=Europe/Berlin:20260329T100000\n";
        add("plain", {ten}, u"10:00-11:00"_s);
        add("declined",
            {ten + "ORGANIZER:mailto:boss@example.org\n"
                   "ATTENDEE;PARTSTAT=DECLINED:MAILTO:me@example.ORG\n"},
            u"10:00-11:00 declined"_s);
        add("declined by another",
            {ten + "ORGANIZER:mailto:boss@example.org\n"
                   "ATTENDEE;PARTSTAT=ACCEPTED:mailto:me@example.org\n"
                   "ATTENDEE;PARTSTAT=DECLINED:mailto:you@example.org\n"},
            u"10:00-11:00"_s);
        add("all day", {"DTSTART;VALUE=DATE:20260329\nDTEND;VALUE=DATE:20260330\n"}, u"00:00-00:00 all day"_s);
        add("cancelled", {ten + "STATUS:CANCELLED\n"}, {});
        add("daily", {daily}, u"10:00-11:00"_s);
        add("daily but then", {daily + "EXDATE;TZID=Europe/Berlin:20260329T100000\n"}, {});
        add("cancelled that day", {daily, instance + ten + "STATUS:CANCELLED\n"}, {});
        add("moved within", {daily, instance + "DTSTART:20260329T160000Z\nDTEND:20260329T163000Z\n"}, u"18:00-18:30"_s);
        add("moved away", {daily, instance + "DTSTART:20260402T160000Z\nDTEND:20260402T163000Z\n"}, {});
        add("moved here",
            {"DTSTART:20260310T080000Z\nDTEND:20260310T090000Z\nRRULE:FREQ=WEEKLY\n",
             "RECURRENCE-ID:20260317T080000Z\nDTSTART:20260329T120000Z\nDTEND:20260329T130000Z\n"},
            u"14:00-15:00"_s);
        add("in the hour that is skipped",
            {"DTSTART;TZID=Europe/Berlin:20260301T023000\nDURATION:PT1H\nRRULE:FREQ=DAILY\n"}, u"03:30-04:30"_s);
        add("over the hour that is skipped", {"DTSTART;TZID=Europe/Berlin:20260328T233000\nDURATION:PT4H\n"},
            u"23:30-04:30"_s);
        add("unknown zone", {"DTSTART;TZID=Mars/Olympus:20260329T090000\nDURATION:PT1H\n"}, u"09:00-10:00"_s);
        add("its own zone",
            {component("VTIMEZONE", "TZID:Ours\nBEGIN:STANDARD\nDTSTART:19700101T000000\n"
                                    "TZOFFSETFROM:+0530\nTZOFFSETTO:+0530\nEND:STANDARD\n"),
             "DTSTART;TZID=Ours:20260329T090000\nDURATION:PT1H\n"},
            u"05:30-06:30"_s);
        add("notes",
            {ten + "LOCATION:Room 1\\, left\nURL:https://example.org/a\n"
                   "DESCRIPTION:<a href=\"https://zoom.us/j/1?a=1&amp\\;b=2\">\\nJoin</a>\n"},
            u"10:00-11:00 Room 1, left|https://example.org/a|<a href=\"https://zoom.us/j/1?a=1&amp;b=2\">\nJoin</a>"_s);
    }
    void eventsOfADay() {
        QFETCH(const Source, source);
        QFETCH(const QString, name);
        auto world = this->world(source);
        QStringList found;
        for (const CalendarEvent& each : world.events(u"2026-03-29T00:00"_s, u"2026-03-30T00:00"_s)) {
            if (!each.id.section(u'/', -2).contains(QString::fromLatin1(QUrl::toPercentEncoding(name)) + u'/') &&
                !each.id.endsWith(u'/' + QString::fromLatin1(QUrl::toPercentEncoding(name))))
                continue;
            const auto clock = [](WallTime time) { return toDateTime(time).toLocalTime().toString(u"hh:mm"); };
            QString line = clock(each.start) + u'-' + clock(each.end);
            line += each.isAllDay ? u" all day"_s : QString();
            line += each.isDeclined ? u" declined"_s : QString();
            line += each.notes.isEmpty() ? QString() : u' ' + each.location + u'|' + each.url + u'|' + each.notes;
            found.append(line);
        }
        QCOMPARE(world.store.source(), source);
        QTEST(found.join(u"; "), "expected");
    }

    void aReminderIsDone_data() { forBoth(); }
    void aReminderIsDone() {
        QFETCH(const Source, source);
        const QByteArray alarm = "BEGIN:VALARM\nACTION:DISPLAY\nDESCRIPTION:x\nTRIGGER:-PT5M\nX-ALARM:1\nEND:VALARM\n";
        put(u"once"_s,
            component("VTODO", "UID:once\nSUMMARY:once\nDUE;VALUE=DATE:20260105\nX-OWN;X-A=b:kept\n" + alarm));
        put(u"daily"_s, component("VTODO", "UID:daily\nSUMMARY:daily\nDTSTART:20260105T080000Z\n"
                                           "DUE:20260105T083000Z\nRRULE:FREQ=DAILY\nX-OWN:kept\n" +
                                               alarm));
        put(u"tomorrow"_s, component("VTODO", "UID:tomorrow\nSUMMARY:tomorrow\nDUE;VALUE=DATE:20260106\n"));
        put(u"done"_s, component("VTODO", "UID:done\nSUMMARY:done\nDUE;VALUE=DATE:20260105\nSTATUS:COMPLETED\n"));
        const QString path = folder() + u"/work/once.ics"_s;
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        auto world = this->world(source);
        QCOMPARE(world.titles(), (QStringList{u"daily"_s, u"once"_s}));

        for (const CalendarReminder& each : world.reminders())
            QVERIFY(world.saved([&](auto done) { return world.store.complete(each.id, done); }));
        QCOMPARE(world.titles(), QStringList());
        for (const char* kept :
             {"X-OWN;X-A=b:kept", "X-ALARM:1", "STATUS:COMPLETED", "COMPLETED:20260105T", "SEQUENCE:1"})
            QVERIFY2(stored(source, u"once"_s).contains(kept), stored(source, u"once"_s));
        for (const char* kept : {"X-OWN:kept", "X-ALARM:1", "DTSTART:20260106T080000Z", "DUE:20260106T083000Z"})
            QVERIFY2(stored(source, u"daily"_s).contains(kept), stored(source, u"daily"_s));
        if (source == Source::folders)
            QCOMPARE(permissionsOf(path), 0640U);

        QVERIFY(!world.saved([&](auto done) { return world.store.complete(u"no/such"_s, done); }));
        QVERIFY(world.saved([&](auto done) { return world.store.add(u"Milk, 2"_s, QDate(2026, 1, 5), done); }));
        QCOMPARE(world.titles(), QStringList{u"Milk, 2"_s});
    }

    void changesOfOthersAreTold_data() { forBoth(); }
    void changesOfOthersAreTold() {
        QFETCH(const Source, source);
        auto world = this->world(source);
        const auto count = [&] { return world.events(u"2026-05-01T00:00"_s, u"2026-05-02T00:00"_s).size(); };
        const auto before = count();
        QVERIFY(world.wait([&] { return world.clock.pending() == 0; })); // what it found at the start is told
        const int changes = world.changes;
        const QString uid = u"new of "_s + QString::fromLatin1(QTest::currentDataTag());
        // The server begins to tell of changes when it has come to it.
        for (int attempt = 0; attempt < 20 && world.changes == changes; ++attempt) {
            put(uid, component("VEVENT", "UID:" + uid.toUtf8() + "\nDTSTART:20260501T100000Z\nDURATION:PT1H\n"));
            world.wait([&] { return world.changes > changes; }, 1'000);
        }
        QVERIFY(world.changes > changes);
        QCOMPARE(count(), before + 1);
    }

    void aServerThatEndsIsFoundAgain() {
        auto world = this->world(Source::system);
        const auto found = [&] {
            QStringList ids;
            for (const auto& each : world.events(u"2026-03-29T00:00"_s, u"2026-03-30T00:00"_s))
                ids.append(each.id);
            ids.sort();
            return ids;
        };
        const QStringList before = found();
        QVERIFY(!before.isEmpty());
        m_server.killFactory();
        const int changes = world.changes;
        QVERIFY(m_server.startFactory());
        QVERIFY(world.wait([&] { return world.changes > changes; }));
        QCOMPARE(found(), before);
    }

    void nothingIsHere() {
        auto world = World({}, m_home.filePath(u"gone"_s));
        QVERIFY(world.store.access(CalendarStore::Kind::events) == CalendarStore::Access::unknown);
        QVERIFY(world.reminders().isEmpty());
        QVERIFY(world.store.access(CalendarStore::Kind::events) == CalendarStore::Access::missing);
        // As soon as there is something it is found.
        putFile(m_home.filePath(u"gone/a.ics"_s),
                calendarOf(component("VTODO", "UID:a\nSUMMARY:a\nDUE;VALUE=DATE:20260105\n")));
        QCOMPARE(world.titles(), QStringList{u"a"_s});
        // The folder goes: no file takes its place, and who was promised an answer gets one.
        QVERIFY(QDir(m_home.filePath(u"gone"_s)).removeRecursively());
        const auto add = [&](auto done) { return world.store.add(u"b"_s, QDate(2026, 1, 5), done); };
        QVERIFY(!world.saved(add));
        QVERIFY(!QFileInfo::exists(m_home.filePath(u"gone"_s)));
        std::optional<bool> outcome;
        const Handle saving = add([&](bool isSaved) { outcome = isSaved; });
        world.store.choose({});
        QVERIFY(world.wait([&] { return outcome.has_value(); }));
        world.reminders();
        QCOMPARE(world.store.source(), Source::system);
    }

    void whereCalendarsAre() {
        const QString home = m_home.filePath(u"home"_s);
        for (const char* path :
             {"/cal/work", "/mine.ics", "/.config/khal/config", "/.calendars/a/1.ics", "/people/x.vcf"})
            putFile(home + QString::fromLatin1(path), {});
        putFile(home + u"/.config/vdirsyncer/config"_s,
                "[storage a]\ntype = \"filesystem\"\npath = \"~/cal/\"\nfileext = \".ics\"\n[storage b]\n"
                "path = \"$DATA/people\"\nfileext = \".vcf\"\n[storage c]\ntype = \"caldav\"\nusername = "
                "\"Me@example.org\"\n"
                "[storage d]\ntype = \"singlefile\"\npath = \"~/mine.ics\"\n[storage e]\npath = \"~/gone/\"\n");
        putFile(home + u"/.config/khal/config"_s,
                "[calendars]\n[[all]]\npath = ~/cal/*\ntype = discover\naddresses = me@example.org, it@example.org\n");
        const auto places = usualCalendarPlaces(home, home + u"/.config"_s, home + u"/.local/share"_s);
        QCOMPARE(places.paths, (QStringList{home + u"/cal"_s, home + u"/mine.ics"_s, home + u"/.calendars"_s}));
        QCOMPARE(places.addresses, (QStringList{u"me@example.org"_s, u"it@example.org"_s}));
    }
};

QTEST_GUILESS_MAIN(CalendarTest)
#include "tst_Calendar.moc"
