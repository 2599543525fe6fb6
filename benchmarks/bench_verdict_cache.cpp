// Saving ten thousand remembered answers: what the main thread pays, and what the disk worker does. The floor
// of the latter is writing the same bytes.

#include "Base/JsonFile.h"
#include "Base/Worker.h"
#include "Focus/VerdictCache.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

constexpr int count = 10'000;

LearnedAnswers entries() {
    LearnedAnswers all;
    for (int number = 0; number < count; ++number) {
        all.insert(u"host%1.example.com"_s.arg(number * 7919 % 100'003), LearnedAnswer{{.modeID = u"building"_s,
                                                                                        .certainty = Certainty::likely,
                                                                                        .what = u"API docs"_s,
                                                                                        .source = Source::model}});
    }
    return all;
}

void encode(benchmark::State& state) {
    const auto all = entries();
    for (auto _ : state)
        benchmark::DoNotOptimize(VerdictCache::encode(all));
}
BENCHMARK(encode)->Unit(benchmark::kMillisecond);

/// The peer: filling one JSON object in whatever order the answers come.
void encodeAsObject(benchmark::State& state) {
    const auto all = entries();
    for (auto _ : state) {
        QJsonObject object;
        for (auto entry = all.begin(); entry != all.end(); ++entry)
            object.insert(entry.key(), QJsonObject{{u"modeID"_s, *entry->verdict.modeID},
                                                   {u"certainty"_s, u"likely"_s},
                                                   {u"what"_s, entry->verdict.what},
                                                   {u"source"_s, u"model"_s}});
        benchmark::DoNotOptimize(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }
}
BENCHMARK(encodeAsObject)->Unit(benchmark::kMillisecond);

void decode(benchmark::State& state) {
    const QByteArray bytes = VerdictCache::encode(entries());
    for (auto _ : state)
        benchmark::DoNotOptimize(VerdictCache::decode(QJsonDocument::fromJson(bytes).object()));
}
BENCHMARK(decode)->Unit(benchmark::kMillisecond);

void write(benchmark::State& state) {
    const QTemporaryDir folder;
    const QByteArray bytes = VerdictCache::encode(entries());
    for (auto _ : state)
        JsonFile::write(folder.filePath(u"Verdicts.json"_s), bytes);
}
BENCHMARK(write)->Unit(benchmark::kMillisecond);

/// What the disk worker does for a save.
void save(benchmark::State& state) {
    const QTemporaryDir folder;
    const auto all = entries();
    for (auto _ : state)
        JsonFile::write(folder.filePath(u"Verdicts.json"_s), VerdictCache::encode(all));
}
BENCHMARK(save)->Unit(benchmark::kMillisecond);

/// What the main thread pays for one new answer while an earlier save is being written.
void answerAndSave(benchmark::State& state) {
    const QTemporaryDir folder;
    JsonFile::write(folder.filePath(u"Verdicts.json"_s), VerdictCache::encode(entries()));
    Worker disk(u"disk"_s);
    VerdictCache cache(folder.path(), disk);
    int number = 0;
    for (auto _ : state) {
        cache.insert(u"new%1"_s.arg(++number % 100), {{.what = u"API docs"_s}});
        cache.save();
    }
}
BENCHMARK(answerAndSave)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
