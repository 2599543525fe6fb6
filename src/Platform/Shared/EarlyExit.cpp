#include "Platform/Shared/EarlyExit.h"

#include <atomic>
#include <cstdlib>
#include <utility>

namespace fendrel {

namespace {

std::atomic<const std::function<void()>*> pending = nullptr; // what exit() calls is given nothing

void onExit() {
    if (const auto* run = pending.exchange(nullptr))
        (*run)();
}

} // namespace

EarlyExit::EarlyExit(std::function<void()> run) : m_run(std::move(run)) {
    pending = &m_run;
    std::atexit(onExit);
}

EarlyExit::~EarlyExit() {
    pending = nullptr;
}

} // namespace fendrel
