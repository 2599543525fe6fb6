#include "Files.h"
#include "Table.h"
#include "Widgets/Usage/ByteSearch.h"
#include "Widgets/Usage/UsageRoots.h"
#include "Widgets/Usage/UsageScanner.h"
#include "Widgets/UsageLines.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <random>
#include <thread>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

const QByteArray utc = "UTC";
const QString noon = u"2026-01-05T12:00:00Z"_s;
const QByteArray morning = "2026-01-05T09:10:00.000Z";

WallTime moment(const QString& text) {
    return toWallTime(QDateTime::fromString(text, Qt::ISODate));
}

/// A folder of logs and who reads them. Files are as old as noon, unless the test says otherwise.
class Logs {
public:
    void put(const QString& name, const QByteArray& content, const QString& modified = noon) {
        putFile(path(name), content);
        touch(name, modified);
    }
    void append(const QString& name, const QByteArray& content) {
        QFile file(path(name));
        if (!file.open(QIODevice::Append) || file.write(content) != content.size())
            qFatal("cannot append");
    }
    void touch(const QString& name, const QString& modified) {
        QFile file(path(name));
        if (!file.open(QIODevice::Append) ||
            !file.setFileTime(QDateTime::fromString(modified, Qt::ISODate), QFileDevice::FileModificationTime))
            qFatal("cannot set the time");
    }
    QString path(const QString& name) const { return m_folder.path() + u'/' + name; }

    usage::Summary scan(const QString& now = noon, const QByteArray& zone = utc) {
        return m_scanner.scan(moment(now), QTimeZone(zone));
    }
    qint64 tokens() { return scan().tokensToday; }

private:
    QTemporaryDir m_folder;
    UsageScanner m_scanner{{m_folder.path()}};
};

/// One reply at each moment, of 1, 2, 4 and so on tokens.
QByteArray replies(const QStringList& moments) {
    QByteArray lines;
    for (qsizetype each = 0; each < moments.size(); ++each)
        lines += usageLine(moments[each].toUtf8(), "r" + QByteArray::number(each), qint64(1) << each);
    return lines;
}

} // namespace

class UsageScannerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windows_data() {
        const Table<QByteArray, QStringList, QString, QString> row("zone", "replies", "now", "expected");
        const QStringList day{u"2026-01-05T09:10:00Z"_s, u"2026-01-05T10:40:00Z"_s, u"2026-01-05T14:05:00Z"_s};
        row("holds five hours", utc, day, u"2026-01-05T13:59:59Z"_s, u"2026-01-05T09:00:00Z 2 3"_s);
        row("the next one", utc, day, u"2026-01-05T14:05:00Z"_s, u"2026-01-05T14:00:00Z 1 4"_s);
        row("is over", utc, day, u"2026-01-05T19:00:00Z"_s, u""_s);
        row("its end belongs to the next", utc, {day[0], u"2026-01-05T14:00:00Z"_s}, u"2026-01-05T14:01:00Z"_s,
            u"2026-01-05T14:00:00Z 1 2"_s);
        row("over midnight", utc, {u"2026-01-04T22:59:00Z"_s, u"2026-01-05T01:00:00Z"_s}, u"2026-01-05T02:00:00Z"_s,
            u"2026-01-04T22:00:00Z 2 3"_s);
        row("half an hour", "Asia/Kolkata", day.first(1), u"2026-01-05T10:00:00Z"_s, u"2026-01-05T08:30:00Z 1 1"_s);
        row("three quarters", "Asia/Kathmandu", day.first(1), u"2026-01-05T10:00:00Z"_s, u"2026-01-05T08:15:00Z 1 1"_s);
        row("clocks went back by half an hour", "Australia/Lord_Howe", {u"2026-04-04T15:40:00Z"_s},
            u"2026-04-04T16:00:00Z"_s, u"2026-04-04T15:30:00Z 1 1"_s);
        row("what is yet to come", utc, {day[0], u"2026-01-05T18:00:00Z"_s}, u"2026-01-05T10:00:00Z"_s,
            u"2026-01-05T09:00:00Z 1 1"_s);
    }
    void windows() {
        QFETCH(const QStringList, replies);
        QFETCH(const QString, now);
        QFETCH(const QByteArray, zone);
        Logs logs;
        logs.put(u"a.jsonl"_s, ::replies(replies), now);
        const auto window = logs.scan(now, zone).window;
        const QString told = window ? u"%1 %2 %3"_s.arg(toDateTime(window->start).toString(Qt::ISODate))
                                          .arg(window->messages)
                                          .arg(window->tokens)
                                    : QString();
        QTEST(told, "expected");
    }

    void days_data() {
        const Table<QByteArray, QStringList, QString, QString> row("zone", "replies", "now", "expected");
        row("from midnight", "Europe/Berlin", {u"2026-01-04T22:59:59Z"_s, u"2026-01-04T23:00:00Z"_s},
            u"2026-01-05T22:59:00Z"_s, u"0:2"_s);
        row("half an hour", "Asia/Kolkata",
            {u"2026-01-04T18:29:00Z"_s, u"2026-01-04T18:30:00Z"_s, u"2026-01-04T19:29:00Z"_s},
            u"2026-01-05T12:00:00Z"_s, u"0:6"_s);
        row("an hour that is not", "Europe/Berlin", {u"2026-03-29T00:30:00Z"_s, u"2026-03-29T01:30:00Z"_s},
            u"2026-03-29T12:00:00Z"_s, u"1:1 3:3"_s);
        row("an hour that comes twice", "Europe/Berlin",
            {u"2026-10-25T00:30:00Z"_s, u"2026-10-25T01:30:00Z"_s, u"2026-10-25T22:30:00Z"_s},
            u"2026-10-25T22:45:00Z"_s, u"2:3 23:7"_s);
        row("without a midnight", "America/Sao_Paulo", {u"2018-11-04T02:59:00Z"_s, u"2018-11-04T03:00:00Z"_s},
            u"2018-11-04T12:00:00Z"_s, u"1:2"_s);
    }
    /// The hours at which the sum grows, and what it is from there on.
    void days() {
        QFETCH(const QStringList, replies);
        QFETCH(const QString, now);
        QFETCH(const QByteArray, zone);
        Logs logs;
        logs.put(u"a.jsonl"_s, ::replies(replies), now);
        const auto summary = logs.scan(now, zone);
        QStringList grows;
        for (qsizetype hour = 0; hour < 24; ++hour) {
            const qint64 sum = summary.cumulativeByHour[hour];
            if (sum != (hour > 0 ? summary.cumulativeByHour[hour - 1] : 0))
                grows.append(u"%1:%2"_s.arg(hour).arg(sum));
        }
        QTEST(grows.join(u' '), "expected");
        QCOMPARE(summary.tokensToday, summary.cumulativeByHour.last());
        QCOMPARE(summary.outputToday, summary.tokensToday);
    }

    void lines_data() {
        const Table<QByteArray, QString> row("line", "expected");
        const auto with = [](QByteArray old, const QByteArray& replacement) {
            return usageLine(morning, "r", 8).replace(old, replacement);
        };
        row("plain", with("", ""), u"opus 8"_s);
        row("all kinds of tokens",
            with("output_tokens\":8", "output_tokens\":8,\"input_tokens\":1,\"cache_creation_input_tokens"
                                      "\":2,\"cache_read_input_tokens\":4,\"other\":64,\"more\":{\"input_tokens\":64}"),
            u"opus 15"_s);
        row("whole seconds", with(".000Z", "Z"), u"opus 8"_s);
        row("microseconds, an offset", with("05T09:10:00.000Z", "04T23:30:00.123456-01:00"), u"opus 8"_s);
        row("no zone", with(".000Z", ""), u""_s);
        row("no such day", with("01-05", "02-30"), u""_s);
        row("too old", with("01-05", "01-03"), u""_s);
        row("the agent's own words", with("opus", "<synthetic>"), u""_s);
        row("no model", with("\"model\":\"opus\",", ""), u"unknown 8"_s);
        row("another type", with("\"type\":\"assistant\"", "\"type\":\"user\",\"role\":\"assistant\""), u""_s);
        row("no counters", with("{\"output_tokens\":8}", "null"), u""_s);
        row("text for a counter", with(":8", ":\"8\",\"input_tokens\":1"), u"opus 1"_s);
        row("below nothing", with(":8", ":-8"), u"opus 0"_s);
        row("huge", with(":8", ":9223372036854775807"), u"opus 1000000000"_s);
        row("larger than that", with(":8", ":1e300"), u"opus 1000000000"_s);
        row("a counter twice", with(":8", ":8,\"output_tokens\":1"), u"opus 1"_s);
        row("nothing for a message", with("\"message\":{", "\"message\":null,\"m\":{"), u""_s);
        row("not UTF-8", with("opus", "\xff\xfe"), u""_s);
        row("a null byte", with("opus", QByteArray("a\0b", 3)), u""_s);
        row("cut", with("8}}}", "8}"), u""_s);
        row("not an object", "[\"usage\",\"assistant\"]\n", u""_s);
        row("very deep", QByteArray(100'000, '[') + "\"usage\"\"assistant\"\n", u""_s);
    }
    /// Whatever a line holds, the next one counts.
    void lines() {
        QFETCH(const QByteArray, line);
        Logs logs;
        logs.put(u"a.jsonl"_s, line + usageLine(morning, "other", 1, "next"));
        auto models = logs.scan().models;
        QCOMPARE(models.take(u"next"_s), 1);
        const QString told = models.isEmpty() ? QString() : u"%1 %2"_s.arg(models.firstKey()).arg(models.first());
        QTEST(told, "expected");
    }

    void aRequestCountsOnce() {
        Logs logs;
        const QByteArray nameless = usageLine(morning, "", 100);
        const QByteArray message = usageLine(morning, "", 100).replace("message\":{", "message\":{\"id\":\"m\",");
        logs.put(u"a.jsonl"_s, usageLine(morning, "r", 1) + usageLine(morning, "s", 10) + usageLine(morning, "r", 3));
        QCOMPARE(logs.tokens(), 13);
        logs.append(u"a.jsonl"_s, usageLine("2026-01-05T09:20:00Z", "r", 2, "haiku"));
        logs.put(u"folder/resumed.jsonl"_s, usageLine(morning, "s", 10));
        const auto summary = logs.scan();
        QCOMPARE(summary.models, (QMap<QString, qint64>{{u"haiku"_s, 2}, {u"opus"_s, 10}}));
        QCOMPARE(summary.messagesToday, 2);
        logs.append(u"a.jsonl"_s, message + message);
        QCOMPARE(logs.tokens(), 112);
        logs.append(u"a.jsonl"_s, nameless + nameless);
        QCOMPARE(logs.tokens(), 312);
    }

    void aLineIsReadOnceItIsWhole() {
        Logs logs;
        const QByteArray line = usageLine(morning, "r", 1);
        logs.put(u"a.jsonl"_s, {});
        for (qsizetype place = 0; place < line.size(); ++place) {
            QCOMPARE(logs.tokens(), 0);
            logs.append(u"a.jsonl"_s, line.mid(place, 1));
        }
        QCOMPARE(logs.tokens(), 1);
    }

    void longLines() {
        Logs logs;
        const auto filled = [](const QByteArray& request, qsizetype size) {
            return usageLine(morning, request, 1)
                .replace("message\":{", "message\":{\"text\":\"" + QByteArray(size, 'x') + "\",");
        };
        logs.put(u"a.jsonl"_s, filled("long", 3 * usage::LogTail::chunk + 1) + usageLine(morning, "r", 2) +
                                   filled("too long", usage::LogTail::longestLine) + usageLine(morning, "s", 4) +
                                   QByteArray(usage::LogTail::longestLine + 1, '"'));
        QCOMPARE(logs.tokens(), 7);
        logs.append(u"a.jsonl"_s, "rest\n" + usageLine(morning, "t", 8));
        QCOMPARE(logs.tokens(), 15);
    }

    void anotherFileOfTheSameName() {
        Logs logs;
        logs.put(u"a.jsonl"_s, usageLine(morning, "r", 1) + usageLine(morning, "s", 2));
        logs.put(u"b.jsonl"_s, usageLine(morning, "t", 4));
        QCOMPARE(logs.tokens(), 7);
        logs.put(u"a.jsonl"_s, usageLine(morning, "u", 8)); // shorter
        QCOMPARE(logs.tokens(), 12);
        logs.put(u"new"_s, usageLine(morning, "v", 16) + usageLine(morning, "w", 32));
        QVERIFY(QFile::remove(logs.path(u"a.jsonl"_s)) && QFile::rename(logs.path(u"new"_s), logs.path(u"a.jsonl"_s)));
        QCOMPARE(logs.tokens(), 52);
        logs.put(u"b.jsonl"_s, usageLine(morning, "long request", 64) + usageLine(morning, "x", 128)); // longer
        QCOMPARE(logs.tokens(), 240);
        QVERIFY(QFile::remove(logs.path(u"a.jsonl"_s))); // what was used stays used
        QCOMPARE(logs.tokens(), 240);
    }

    void onlyWhatChangedIsOpened() {
        Logs logs;
        logs.put(u"a.jsonl"_s, usageLine(morning, "r", 1));
        logs.put(u"old.jsonl"_s, usageLine(morning, "s", 2), u"2026-01-03T12:00:00Z"_s);
        logs.put(u"other.json"_s, usageLine(morning, "t", 4));
        QCOMPARE(logs.tokens(), 1);
        logs.append(u"a.jsonl"_s, usageLine(morning, "u", 8));
        logs.put(u"old.jsonl"_s, usageLine(morning, "s", 2), u"2026-01-03T12:00:01Z"_s);
        QCOMPARE(logs.tokens(), 11);
        logs.put(u"old.jsonl"_s, usageLine(morning, "S", 4), u"2026-01-03T12:00:01Z"_s); // looks unchanged
        QCOMPARE(logs.tokens(), 11);
    }

    void foldersAreWalkedOnce() {
        Logs logs;
        const QByteArray nameless = usageLine(morning, "", 1);
        QVERIFY(!logs.scan().hasLogs);
        QVERIFY(!UsageScanner({u"/nonexistent"_s}).scan(moment(noon), QTimeZone(utc)).hasLogs);
        logs.put(u"one/two/a.jsonl"_s, nameless);
        QVERIFY(QFile::link(logs.path(u"one"_s), logs.path(u"one/two/loop"_s)));
        QVERIFY(QFile::link(logs.path(u"one/two"_s), logs.path(u"again"_s)));
        QVERIFY(QFile::link(u"nowhere"_s, logs.path(u"broken.jsonl"_s)));
        QVERIFY(QDir().mkpath(logs.path(u"folder.jsonl"_s)));
        QCOMPARE(logs.tokens(), 1);
        QVERIFY(logs.scan().hasLogs);
    }

    void twoDaysAreRemembered() {
        Logs logs;
        logs.put(u"a.jsonl"_s, replies({u"2026-01-04T08:00:00Z"_s, u"2026-01-05T09:00:00Z"_s}));
        QCOMPARE(logs.scan(u"2026-01-04T12:00:00Z"_s).tokensToday, 1);
        QCOMPARE(logs.scan(u"2026-01-06T08:15:00Z"_s).tokensToday, 0);
        // The clock goes back: what was forgotten is not there any more, the rest is.
        QCOMPARE(logs.scan(u"2026-01-04T12:00:00Z"_s).tokensToday, 0);
        QCOMPARE(logs.scan(u"2026-01-05T12:00:00Z"_s).tokensToday, 2);
    }

    void aLogThatGrowsMeanwhile() {
        constexpr int count = 3000;
        Logs logs;
        logs.put(u"a.jsonl"_s, {});
        std::atomic<bool> isWritten = false;
        const std::jthread writer([&] {
            QFile file(logs.path(u"a.jsonl"_s));
            if (!file.open(QIODevice::Append | QIODevice::Unbuffered))
                return;
            for (int each = 0; each < count; ++each) {
                const QByteArray line = usageLine(morning, QByteArray::number(each), 1);
                const qsizetype middle = each % line.size();
                file.write(line.first(middle));
                file.write(line.sliced(middle));
            }
            isWritten = true;
        });
        qint64 seen = 0;
        for (bool isLast = false; !isLast;) {
            isLast = isWritten;
            const qint64 now = logs.tokens();
            QVERIFY(now >= seen);
            seen = now;
        }
        QCOMPARE(seen, count);
    }

    void bytesAreFoundAsByTheLibrary() {
        std::mt19937 chance(1); // NOLINT(cert-msc51-cpp): the same each time
        const std::string_view needle = "\"ab\"";
        for (int each = 0; each < 20'000; ++each) {
            std::string text(chance() % 300, ' ');
            for (char& letter : text)
                letter = "ab\""[chance() % 3];
            const std::size_t size = chance() % 200; // what is behind that is not looked at
            const auto view = std::string_view(text).substr(0, size);
            const auto place = std::min(view.find(needle), view.size());
            QCOMPARE(findBytes(view.data(), view.data() + view.size(), needle) - view.data(), qsizetype(place));
            QCOMPARE(findBytesPortably(view.data(), view.data() + view.size(), needle) - view.data(), qsizetype(place));
        }
    }

    void roots() {
        const QString home = QDir::homePath();
        QCOMPARE(usageRoots({}), (QStringList{home + u"/.claude/projects"_s, home + u"/.config/claude/projects"_s}));
        QCOMPARE(usageRoots(u" ,"_s), usageRoots({}));
        QCOMPARE(usageRoots(u"/a, ~/b"_s), (QStringList{u"/a/projects"_s, home + u"/b/projects"_s}));
    }
};

QTEST_GUILESS_MAIN(UsageScannerTest)
#include "tst_UsageScanner.moc"
