// One tick of the dock timer while nothing is to be done: time, and allocations, of which there must be none. The floor
// is asking the clock. The window system is not asked at all: its fakes count every call.

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

void tick(benchmark::State& state) {
    FakePlatform fake;
    fake.platform.settings->set(u"autoHide"_s, true);
    fake.platform.settings->set(u"dockDisplay"_s, u"all"_s);
    fake.displays->displays.append(
        {.id = u"second"_s, .frame = {1920, 0, 1920, 1080}, .workArea = {1920, 0, 1920, 1080}, .isMain = false, .space = u"1"_s});
    AppController controller(fake.platform);
    controller.launch();
    const std::size_t before = allocations;
    for (auto _ : state)
        controller.updateAutoHide();
    state.counters["allocations"] = static_cast<double>(allocations - before);
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
