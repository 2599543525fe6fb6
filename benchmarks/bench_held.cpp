// What a look at the log of notifications costs, for logs of very different sizes, and what is done with a new record.
// The floor of a read opens the log, scans it by the same statement and closes it. The peers are a search for each word
// without its borders, and a library's reader of property lists.

#include "Base/Sqlite.h"
#include "Messages/BreakThrough.h"
#include "Messages/NotificationContent.h"
#include "Messages/NotificationReader.h"
#include "fakes/FakeNotificationLog.h"

#include <benchmark/benchmark.h>
#include <plist/plist.h>

#include <cstdlib>

using namespace fendrel;
using namespace Qt::StringLiterals;
using sqlite::Statement;

namespace {

/// A log of so many records, which come and go five at a time.
struct Log {
    explicit Log(qint64 size) : last(size) {
        log.run(u"INSERT INTO app VALUES (1, 'org.example.Chat')"_s);
        add(u"1"_s, QString::number(size));
    }
    void next() {
        log.run(u"BEGIN"_s);
        log.run(u"DELETE FROM record WHERE rec_id IN (SELECT rec_id FROM record ORDER BY rec_id LIMIT 5)"_s);
        add(QString::number(last + 1), QString::number(last + 5));
        log.run(u"COMMIT"_s);
        last += 5;
    }
    void add(const QString& from, const QString& to) {
        log.run(u"WITH RECURSIVE n(i) AS (SELECT %1 UNION ALL SELECT i + 1 FROM n WHERE i < %2) "
                "INSERT INTO record SELECT i, 1, randomblob(16), x'%3', NULL, i FROM n"_s.arg(from, to, data));
    }

    FakeNotificationLog log;
    QString data = QString::fromLatin1(
        FakeNotificationLog::data({.title = u"Anna"_s, .body = u"Lunch at twelve? "_s.repeated(8)}).toHex());
    qint64 last;
};

void unchanged(benchmark::State& state) {
    Log log(state.range(0));
    NotificationReader reader(log.log.databasePath());
    (void)reader.read();
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.read());
}
BENCHMARK(unchanged)->Arg(500)->Arg(5'000)->Arg(50'000);

void fiveNew(benchmark::State& state) {
    Log log(state.range(0));
    NotificationReader reader(log.log.databasePath());
    (void)reader.read();
    for (auto _ : state) {
        state.PauseTiming();
        log.next();
        state.ResumeTiming();
        if (reader.read()->size() != 5)
            state.SkipWithError("a new record was not found");
    }
}
BENCHMARK(fiveNew)->Arg(500)->Arg(5'000)->Arg(50'000);

void bareScan(benchmark::State& state) {
    Log log(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        log.next();
        state.ResumeTiming();
        const auto database = *sqlite::Database::openReadOnly(log.log.databasePath(), {});
        Statement statement = *database->prepare(u"SELECT rec_id, uuid FROM record"_s);
        while (statement.step() == Statement::Step::row) {
            benchmark::DoNotOptimize(statement.integer(0));
            benchmark::DoNotOptimize(statement.bytes(1).data());
        }
    }
}
BENCHMARK(bareScan)->Arg(500)->Arg(5'000)->Arg(50'000);

const HeldMessage message{.title = u"Anna Müller in #building"_s,
                          .body = u"Could somebody look at the tests of the relay before tomorrow? "_s.repeated(7)};

QStringList words() {
    QStringList list;
    for (int number = 0; number < 20; ++number)
        list.append(u"word%1"_s.arg(number));
    return list;
}

void twentyWords(benchmark::State& state) {
    const BreakThrough breakThrough(words());
    for (auto _ : state)
        benchmark::DoNotOptimize(breakThrough.reason(message));
}
BENCHMARK(twentyWords);

void twentySearches(benchmark::State& state) {
    const QStringList list = words();
    for (auto _ : state) {
        for (const QString& word : list) {
            benchmark::DoNotOptimize(message.title.contains(word, Qt::CaseInsensitive));
            benchmark::DoNotOptimize(message.body.contains(word, Qt::CaseInsensitive));
        }
    }
}
BENCHMARK(twentySearches);

void decode(benchmark::State& state) {
    const QByteArray data = FakeNotificationLog::data({.title = message.title, .body = message.body});
    for (auto _ : state)
        benchmark::DoNotOptimize(request(data));
}
BENCHMARK(decode);

void decodeByLibrary(benchmark::State& state) {
    const QByteArray data = FakeNotificationLog::data({.title = message.title, .body = message.body});
    for (auto _ : state) {
        plist_t record = nullptr;
        plist_from_bin(data.constData(), static_cast<uint32_t>(data.size()), &record);
        for (const char* key : {"titl", "subt", "body"}) {
            char* text = nullptr;
            plist_get_string_val(plist_access_path(record, 2, "req", key), &text);
            benchmark::DoNotOptimize(QString::fromUtf8(text));
            std::free(text);
        }
        plist_free(record);
    }
}
BENCHMARK(decodeByLibrary);

} // namespace

BENCHMARK_MAIN();
