#include "Platform/Linux/Calendar/ICalendarEdit.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const CalendarReader reader{.addresses = {}};

QByteArray calendar(const QByteArray& components) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + components + "END:VCALENDAR\r\n";
}

QByteArray anEvent(const QByteArray& start, const QByteArray& more) {
    return "BEGIN:VEVENT\r\nUID:e\r\nSUMMARY:it\r\nDTSTART" + start + "\r\nDURATION:PT1H\r\n" + more + "END:VEVENT\r\n";
}

QByteArray task(const QByteArray& lines) {
    return "BEGIN:VTODO\nUID:t\nX-OWN;X-A=\"b:c\":kept\n" + lines + "END:VTODO\n";
}

WallTime at(const QString& time) {
    return toWallTime(QDateTime::fromString(time, Qt::ISODate));
}

/// When they start, by the user's clock.
QStringList starts(const QByteArray& text, const QString& from, const QString& to) {
    QStringList list;
    ICalendar read(text);
    for (const auto& each : read.events(at(from), at(to), reader))
        list.append(toDateTime(each.start).toLocalTime().toString(u"MM-dd hh:mm"));
    list.sort();
    return list;
}

} // namespace

class ICalendarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whenItComes_data() {
        const Table<QByteArray, QStringList> row("text", "starts");
        const auto turn = [](const QByteArray& range) {
            return anEvent(":20260105T090000", "RRULE:FREQ=DAILY\r\n") +
                   anEvent(":20260107T140000", "RECURRENCE-ID" + range + ":20260107T090000\r\n");
        };
        row("one is moved", calendar(turn({})), {u"01-06 09:00"_s, u"01-07 14:00"_s, u"01-08 09:00"_s});
        row("and those after it", calendar(turn(";RANGE=THISANDFUTURE")),
            {u"01-06 09:00"_s, u"01-07 14:00"_s, u"01-08 14:00"_s});
        row("so many times, begun long ago", calendar(anEvent(":20251231T090000", "RRULE:FREQ=DAILY;COUNT=8\r\n")),
            {u"01-06 09:00"_s, u"01-07 09:00"_s});
        row("until a moment of another zone",
            calendar(anEvent(";TZID=Asia/Tokyo:20260101T080000", "RRULE:FREQ=DAILY;UNTIL=20260106T230000Z\r\n")),
            {u"01-06 00:00"_s, u"01-07 00:00"_s});
        row("dates besides and without",
            calendar(anEvent(":20260106T090000", "RDATE:20260108T120000\r\nRDATE;VALUE=PERIOD:20260107T100000/PT2H\r\n"
                                                 "EXDATE;TZID=UTC:20260106T080000\r\n")),
            {u"01-07 10:00"_s, u"01-08 12:00"_s});
        row("every day but one of the week",
            calendar(anEvent(":20260101T090000", "RRULE:FREQ=DAILY\r\nEXRULE:FREQ=WEEKLY;BYDAY=WE\r\n")),
            {u"01-06 09:00"_s, u"01-08 09:00"_s});
        row("as Windows calls a zone", calendar(anEvent(";TZID=Pacific Standard Time:20260106T090000", {})),
            {u"01-06 18:00"_s});
        row("as other programs call one", calendar(anEvent(";TZID=/example.org/1_2/Asia/Tokyo:20260106T090000", {})),
            {u"01-06 01:00"_s});
        row("a zone of its own",
            calendar(anEvent(";TZID=Ours:20260106T090000", {}) +
                     "BEGIN:VTIMEZONE\r\nTZID:Ours\r\nBEGIN:STANDARD\r\nDTSTART:19700101T000000\r\n"
                     "TZOFFSETFROM:+0300\r\nTZOFFSETTO:+0530\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"),
            {u"01-06 04:30"_s});
        row("the start's day of a week of the year",
            calendar(anEvent(":20150708T090000", "RRULE:FREQ=YEARLY;BYWEEKNO=2\r\n") +
                     anEvent(";TZID=Odd:20260106T090000", "STATUS:CANCELLED\r\n").replace("UID:e", "UID:f") +
                     "BEGIN:VTIMEZONE\r\nTZID:Odd\r\nBEGIN:STANDARD\r\nDTSTART:20150704T040000\r\n"
                     "RRULE:FREQ=YEARLY;BYWEEKNO=14\r\nTZOFFSETFROM:+0300\r\nTZOFFSETTO:+0530\r\n"
                     "END:STANDARD\r\nEND:VTIMEZONE\r\n"),
            {u"01-07 09:00"_s});
        row("a position in no set",
            calendar(anEvent(":20260101T090000", "RRULE:FREQ=MONTHLY;BYSETPOS=2\r\nRDATE:20260106T090000\r\n")),
            {u"01-06 09:00"_s});
        row("notes that begin as a box does",
            calendar(anEvent(":20260106T090000", QByteArray("DESCRIPTION:we\r\n begin: \r\n").repeated(20))),
            {u"01-06 09:00"_s});
        row("a day that no month has",
            calendar(anEvent(":20251231T090000", "RRULE:FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30\r\n")), {});
        row("a broken one beside a good one",
            calendar("BEGIN:VEVENT\r\nDTSTART:nonsense\r\nRRULE:FREQ=NEVER\r\nEND:VEVENT\r\n" +
                     anEvent(":20260106T090000", {})),
            {u"01-06 09:00"_s});
        row("boxes in boxes",
            QByteArray("BEGIN:VEVENT\n").repeated(300'000) + QByteArray("END:VEVENT\n").repeated(300'000), {});
        row("boxes in boxes, otherwise written",
            "END:VEVENT\n" + QByteArray("BEG\n IN ;A=B:VEVENT\n").repeated(300'000) +
                QByteArray("END:VEVENT\n").repeated(300'000),
            {});
        row("no calendar", "<html>", {});
    }
    void whenItComes() {
        QFETCH(const QByteArray, text);
        QTEST(starts(text, u"2026-01-06T00:00"_s, u"2026-01-09T00:00"_s), "starts");
    }

    void rulesHaveAnEnd_data() {
        const Table<QByteArray, qsizetype> row("rule", "most");
        row("every second", "FREQ=SECONDLY", 1);
        row("every minute", "FREQ=MINUTELY", RecurrenceRule::mostInstances);
        row("every hour of no day", "FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30;COUNT=3", 1);
        row("a million times", "FREQ=DAILY;COUNT=1000000", 400);
    }
    void rulesHaveAnEnd() {
        QFETCH(const QByteArray, rule);
        QFETCH(const qsizetype, most);
        const auto found = starts(calendar(anEvent(":20260105T090000", "RRULE:" + rule + "\r\n")),
                                  u"2026-01-01T00:00"_s, u"2027-01-01T00:00"_s);
        QVERIFY(!found.isEmpty() && found.size() <= most);
    }

    /// Told to look from some moment on, the library must find what it finds from the start.
    void aRuleIsFollowedFromAnywhere_data() {
        const Table<QByteArray> row("rule");
        for (const char* rule :
             {"FREQ=MINUTELY;INTERVAL=50", "FREQ=HOURLY;INTERVAL=3", "FREQ=HOURLY;BYHOUR=8,10",
              "FREQ=HOURLY;BYMINUTE=10,50;BYDAY=MO", "FREQ=DAILY;INTERVAL=3", "FREQ=DAILY;BYHOUR=8,20",
              "FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,SU;WKST=SU", "FREQ=MONTHLY;INTERVAL=5", "FREQ=MONTHLY;BYDAY=-1FR",
              "FREQ=MONTHLY;BYDAY=MO,TU;BYSETPOS=-1", "FREQ=YEARLY;BYMONTH=3;BYDAY=2MO",
              "FREQ=YEARLY;INTERVAL=2;BYYEARDAY=100,200", "FREQ=YEARLY;BYWEEKNO=14"})
            row(rule, rule);
    }
    void aRuleIsFollowedFromAnywhere() {
        QFETCH(const QByteArray, rule);
        constexpr LocalSeconds start = 1'436'004'900; // 4 July 2015, 10:15
        const LocalSeconds span = (rule.contains("URLY") || rule.contains("MINUTELY") ? 30 : 3'000) * 86'400LL;
        RecurrenceRule followed(rule, {.local = start});
        const auto all = followed.instances(start, start + span, reader.zone);
        QVERIFY(all.size() > 2 && all.size() < RecurrenceRule::mostInstances);
        for (LocalSeconds from = start; from < start + span; from += span / 23 + 1'234) {
            const auto later = std::ranges::lower_bound(all, from);
            QCOMPARE(followed.instances(from, start + span, reader.zone), QList<LocalSeconds>(later, all.cend()));
        }
    }

    void onlyTheRuleAtFaultIsDropped() {
        ICalendar read(calendar(anEvent(":20251231T090000", "RRULE:FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30\r\n")) +
                       calendar(anEvent(":20250105T100000", "RRULE:FREQ=DAILY\r\n").replace("UID:e", "UID:f")));
        for (WallTime from = at(u"2026-01-05T00:00"_s); from < at(u"2027-01-05T00:00"_s); from += 10 * 24h)
            QCOMPARE(read.events(from, from + 24h, reader).size(), 1);
    }

    void aLaterQuestionIsAnsweredTheSame() {
        const auto text = calendar(anEvent(";TZID=Europe/Berlin:20200106T090000", "RRULE:FREQ=WEEKLY;BYDAY=MO,TH\r\n"));
        ICalendar kept(text);
        for (WallTime now = at(u"2026-03-20T00:00"_s); now < at(u"2026-04-20T00:00"_s); now += 5h) {
            ICalendar fresh(text);
            QVERIFY(kept.events(now, now + 24h, reader) == fresh.events(now, now + 24h, reader));
        }
    }

    void aReminderIsDone_data() {
        const Table<QByteArray, QByteArray> row("before", "after");
        const QByteArray done = "STATUS:COMPLETED\nCOMPLETED:20260105T090000Z\nPERCENT-COMPLETE:100\n"
                                "LAST-MODIFIED:20260105T090000Z\nSEQUENCE:1\n";
        const QByteArray alarm = "BEGIN:VALARM\nSTATUS:NONE\nTRIGGER:-PT5M\nX-ALARM:1\nEND:VALARM\n";
        const QByteArray moved = "STATUS:NEEDS-ACTION\nLAST-MODIFIED:20260105T090000Z\nSEQUENCE:1\n";
        row("a plain one", task("DUE;VALUE=DATE:20260105\n" + alarm), task("DUE;VALUE=DATE:20260105\n" + done + alarm));
        row("one that was begun",
            task("SEQUENCE:4\nPERCENT-COMPLETE:50\nDUE:20260105T120000Z\nSTATUS:IN-PROCESS\nSUMMARY:a long line that\n"
                 "  is folded\n"),
            task("SEQUENCE:5\nPERCENT-COMPLETE:100\nDUE:20260105T120000Z\nSTATUS:COMPLETED\nSUMMARY:a long line that\n"
                 "  is folded\nCOMPLETED:20260105T090000Z\nLAST-MODIFIED:20260105T090000Z\n"));
        const QByteArray named = "BEGIN:VTODO\nUID:a\\, b\\;c\nDUE:20260105T120000Z\n";
        const QByteArray nameless = "BEGIN:VTODO\nDUE:20260105T120000Z\nEND:VTODO\n";
        row("a name with commas, after one without", nameless + named + "END:VTODO\n",
            nameless + named + done + "END:VTODO\n");
        row("one of many",
            task("DTSTART;TZID=Asia/Tokyo:20260103T200000\nDUE;TZID=Asia/Tokyo:20260103T210000\n"
                 "RRULE:FREQ=DAILY;COUNT=9\nEXDATE;TZID=Asia/Tokyo:20260106T200000\n" +
                 alarm),
            task("DTSTART;TZID=Asia/Tokyo:20260107T200000\nDUE;TZID=Asia/Tokyo:20260107T210000\n"
                 "RRULE:FREQ=DAILY;COUNT=5\nEXDATE;TZID=Asia/Tokyo:20260106T200000\n" +
                 moved + alarm));
        row("the last of many", task("DUE;VALUE=DATE:20260104\nRRULE:FREQ=DAILY;COUNT=2\n"),
            task("DUE;VALUE=DATE:20260104\nRRULE:FREQ=DAILY;COUNT=2\n" + done));
        const QByteArray series = task("DUE:20260101T100000\nRRULE:FREQ=DAILY\n") +
                                  task("RECURRENCE-ID:20260104T100000\nDUE:20260104T180000\n");
        row("one that was changed", series + task("RECURRENCE-ID:20260105T100000\nDUE:20260105T180000\n"),
            series + task("RECURRENCE-ID:20260105T100000\nDUE:20260105T180000\n" + done));
    }
    void aReminderIsDone() {
        QFETCH(const QByteArray, before);
        const QByteArray head = "BEGIN:VCALENDAR\nX-WR-CALNAME:Mine\nBEGIN:VEVENT\nUID:t\nEND:VEVENT\n";
        const QByteArray text = head + before + "END:VCALENDAR\n";
        ICalendar read(text);
        const auto due = read.reminders(at(u"2026-01-05T00:00"_s), at(u"2026-01-06T00:00"_s), reader);
        QCOMPARE(due.size(), 1);
        const auto edited = ICalendarEdit::completed(text, TaskKey::fromString(due.first().id),
                                                     at(u"2026-01-05T09:00:00Z"_s), reader.zone);
        QVERIFY(edited);
        QFETCH(const QByteArray, after);
        QCOMPARE(edited->text, head + after + "END:VCALENDAR\n");
        QVERIFY(after.endsWith(edited->task));
        ICalendar then(edited->text);
        QVERIFY(then.reminders(at(u"2026-01-05T00:00"_s), at(u"2026-01-06T00:00"_s), reader).isEmpty());
        QVERIFY(!ICalendarEdit::completed(text, {.uid = u"other"_s}, at(u"2026-01-05T09:00:00Z"_s), reader.zone));
    }

    void aNewReminder() {
        const QString title = u"Milk, bread; \\ "_s + QString(u'ü').repeated(80) + u"\nEND:VTODO"_s;
        const auto added = ICalendarEdit::newTask(u"n"_s, title, QDate(2026, 1, 5), at(u"2026-01-05T09:00:00Z"_s));
        for (const auto& line : added.split('\n'))
            QVERIFY(line.size() <= 76 && QString::fromUtf8(line).toUtf8() == line);
        for (const QByteArray& text : {QByteArray(), calendar(anEvent(":20260106T090000", {}))}) {
            ICalendar read(ICalendarEdit::added(text, added).value());
            const auto due = read.reminders(at(u"2026-01-05T00:00"_s), at(u"2026-01-06T00:00"_s), reader);
            QCOMPARE(due.size(), 1);
            QCOMPARE(due.first().title, title);
            QVERIFY(!due.first().hasTime);
            QCOMPARE(read.seriesCount(), text.isEmpty() ? 1 : 2);
        }
        QVERIFY(!ICalendarEdit::added(calendar(anEvent(":20260106T090000", {})).chopped(20), added)); // cut off
    }
};

QTEST_GUILESS_MAIN(ICalendarTest)
#include "tst_ICalendar.moc"
