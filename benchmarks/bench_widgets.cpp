// Reading the largest page of each service, beside making a JSON document of the same bytes; and adding up a day of
// ten thousand sales, beside nothing but their sum.

#include "Files.h"
#include "Widgets/AnswerReaders.h"
#include "Widgets/Revenue/RevenueDay.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <benchmark/benchmark.h>

#include <numeric>

using namespace fendrel;

namespace {

/// The recorded answer, with its lists as long as they can be.
QJsonValue filled(const QJsonValue& value, qsizetype length) {
    if (value.isObject()) {
        auto object = value.toObject();
        for (auto each = object.begin(); each != object.end(); ++each)
            *each = filled(*each, length);
        return object;
    }
    const auto array = value.toArray();
    if (array.size() == 1) // what is in it is the list
        return QJsonArray{filled(array[0], length)};
    QJsonArray full;
    while (!array.isEmpty() && full.size() < length)
        full.append(array[full.size() % array.size()]);
    return value.isArray() ? full : value;
}

QByteArray largestPage(const AnswerReader& reader) {
    const auto recorded = QJsonDocument::fromJson(contentOf(QStringLiteral(TEST_DATA "/") + reader.recorded));
    const QJsonValue root = recorded.isArray() ? QJsonValue(recorded.array()) : QJsonValue(recorded.object());
    const QJsonValue page = reader.largestPage > 0 ? filled(root, reader.largestPage) : root;
    return (page.isArray() ? QJsonDocument(page.toArray()) : QJsonDocument(page.toObject()))
        .toJson(QJsonDocument::Compact);
}

void parse(benchmark::State& state, const QByteArray& body) {
    for (auto _ : state)
        benchmark::DoNotOptimize(QJsonDocument::fromJson(body));
}

void readPage(benchmark::State& state, const AnswerReader& reader, const QByteArray& body) {
    const HttpResponse response{.status = 200, .body = body};
    if (!reader.read(response).problem.isEmpty())
        state.SkipWithError("the page cannot be read");
    for (auto _ : state)
        benchmark::DoNotOptimize(reader.read(response));
    state.counters["bytes"] = static_cast<double>(body.size());
}

constexpr int count = 10'000;
const QDate day(2026, 1, 5);

QList<ServiceSale> sales() {
    const WallTime start = toWallTime(day.startOfDay(QTimeZone::utc()));
    const QStringList currencies{u"USD"_s, u"EUR"_s, u"GBP"_s};
    QList<ServiceSale> all;
    for (int number = 0; number < count; ++number) // as they come: of each provider the newest first
        all.append({.service = number < count / 2 ? WidgetAccounts::Service::stripe : WidgetAccounts::Service::paddle,
                    .sale = {.money = {.amount = number % 5'000, .currency = currencies[number % 3]},
                             .created = start + std::chrono::seconds((count - number) % (count / 2) * 17),
                             .customer = u"Ada"_s}});
    return all;
}

void fold(benchmark::State& state) {
    const auto all = sales();
    const Rates rates{{u"USD"_s, 1}, {u"EUR"_s, 0.8}, {u"GBP"_s, 0.7}};
    for (auto _ : state)
        benchmark::DoNotOptimize(revenueDay(day, QTimeZone::utc(), all, rates));
}

void sum(benchmark::State& state) {
    const auto all = sales();
    for (auto _ : state)
        benchmark::DoNotOptimize(std::accumulate(all.begin(), all.end(), qint64{}, [](qint64 amount, const auto& each) {
            return amount + each.sale.money.amount;
        }));
}

} // namespace

int main(int argc, char** argv) {
    for (const AnswerReader& reader : answerReaders()) {
        const QByteArray body = largestPage(reader);
        benchmark::RegisterBenchmark(("parse/" + reader.name).constData(), parse, body)->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(("read/" + reader.name).constData(), readPage, reader, body)
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::RegisterBenchmark("fold", fold)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("sum", sum)->Unit(benchmark::kMicrosecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
