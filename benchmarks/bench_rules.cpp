// How long the modes' lists take to answer, for lists of very different lengths. The floor is one look-up of
// the whole host in a hash table of as many; what the suffixes cost comes on top.

#include "Modes/ModeIndex.h"

#include <QHash>
#include <QRandomGenerator>

#include <benchmark/benchmark.h>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

QString host(int number) {
    return u"site%1.example%2.com"_s.arg(number).arg(number % 97);
}

/// Three modes that share `count` sites and as many applications.
QList<Mode> modes(int count) {
    QList<Mode> list{{.id = u"one"_s}, {.id = u"two"_s}, {.id = u"three"_s}};
    for (int number = 0; number < count; ++number) {
        list[number % 3].sites.append(host(number));
        list[number % 3].apps.append(u"org.example.App%1"_s.arg(number));
    }
    return list;
}

/// What is asked for, in an order that no cache can foresee: subdomains of listed sites, and as many unlisted
/// hosts.
QStringList questions(int count) {
    QStringList list;
    QRandomGenerator random(1);
    for (int asked = 0; asked < 4096; ++asked) {
        const int number = random.bounded(count);
        list.append(asked % 2 ? u"m."_s + host(number) : u"www.elsewhere%1.org"_s.arg(number));
    }
    return list;
}

void site(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const ModeIndex index(modes(count));
    const QStringList hosts = questions(count);
    qsizetype next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index.ownerOfSite(hosts[next], 1));
        next = (next + 1) % hosts.size();
    }
}
BENCHMARK(site)->Arg(100)->Arg(10'000)->Arg(100'000);

void siteFloor(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    QHash<QString, int> table;
    for (int number = 0; number < count; ++number)
        table.insert(host(number), number);
    const QStringList hosts = questions(count);
    qsizetype next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(table.constFind(hosts[next]));
        next = (next + 1) % hosts.size();
    }
}
BENCHMARK(siteFloor)->Arg(100)->Arg(10'000)->Arg(100'000);

/// The peer: going through the lists, as the rule is written down.
void siteLoop(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const QList<Mode> all = modes(count);
    const QStringList hosts = questions(count);
    qsizetype next = 0;
    for (auto _ : state) {
        for (const Mode& mode : all) {
            const bool isListed = Mode::site(hosts[next], mode.sites);
            benchmark::DoNotOptimize(isListed);
            if (isListed)
                break;
        }
        next = (next + 1) % hosts.size();
    }
}
BENCHMARK(siteLoop)->Arg(100)->Arg(10'000);

void application(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    const ModeIndex index(modes(count));
    QStringList apps;
    for (int asked = 0; asked < 4096; ++asked)
        apps.append(u"org.example.App%1"_s.arg((asked * 7919) % (2 * count)));
    qsizetype next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index.ownerOfApp(apps[next], 1));
        next = (next + 1) % apps.size();
    }
}
BENCHMARK(application)->Arg(100)->Arg(10'000)->Arg(100'000);

} // namespace

BENCHMARK_MAIN();
