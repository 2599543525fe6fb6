// One tick of the dock timer while nothing is to be done: time, and allocations, of which there must be none.
// The floor is asking the clock. The window system is not asked at all: its fakes count every call.

#include "App/AppController.h"
#include "fakes/FakePlatform.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <new>

namespace {
std::size_t allocations = 0;
}

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

class CountedDisplays final : public Displays {
public:
    QList<Display> all() const override {
        ++questions;
        return displays;
    }
    QList<Display> displays;
    mutable std::size_t questions = 0;
};

void tick(benchmark::State& state) {
    FakePlatform fake;
    fake.platform.settings->set(u"autoHide"_s, true);
    fake.platform.settings->set(u"dockDisplay"_s, u"all"_s);
    auto counted = std::make_unique<CountedDisplays>();
    const CountedDisplays& displays = *counted;
    for (const QString& id : {u"first"_s, u"second"_s}) {
        const QRect area(1920 * static_cast<int>(counted->displays.size()), 0, 1920, 1080);
        counted->displays.append({.id = id, .frame = area, .workArea = area, .space = u"1"_s});
    }
    fake.platform.displays = std::move(counted);
    AppController controller(fake.platform);
    controller.launch();
    const std::size_t allocationsBefore = allocations;
    const std::size_t questionsBefore = displays.questions;
    for (auto _ : state)
        controller.updateAutoHide();
    state.counters["allocations"] = static_cast<double>(allocations - allocationsBefore);
    state.counters["questions"] = static_cast<double>(displays.questions - questionsBefore);
}
BENCHMARK(tick);

void clockFloor(benchmark::State& state) {
    const FakePlatform fake;
    for (auto _ : state)
        benchmark::DoNotOptimize(fake.platform.clock->continuousNow());
}
BENCHMARK(clockFloor);

} // namespace

BENCHMARK_MAIN();
