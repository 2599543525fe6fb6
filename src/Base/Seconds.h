#pragma once

#include <chrono>

namespace fendrel {

/// Lengths of time as people set and see them, and as they are stored.
using Seconds = std::chrono::duration<double>;

} // namespace fendrel
