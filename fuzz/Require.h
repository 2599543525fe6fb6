#pragma once

#include <cstdlib>

/// What holds for every input. An assert would be gone from a release build.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}
