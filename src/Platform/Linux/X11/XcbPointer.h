#pragma once

#include <cstdlib>
#include <memory>

namespace fendrel {

struct FreeDeleter {
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc): this is the owner
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply, event or error that the X library allocated.
template<class Type>
using XcbPointer = std::unique_ptr<Type, FreeDeleter>;

} // namespace fendrel
