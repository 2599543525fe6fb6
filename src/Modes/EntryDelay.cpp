#include "Modes/EntryDelay.h"

#include <algorithm>

namespace fendrel {

Seconds entryDelay(const Mode& target, bool isAllowanceSpent, bool isFocusOn, Strictness strictness) {
    constexpr Seconds slow{30};
    if (isAllowanceSpent)
        return std::max(target.entryDelay, slow);
    if (!isFocusOn)
        return {};
    switch (strictness) {
    case Strictness::gentle:
        return {};
    case Strictness::balanced:
        return target.entryDelay;
    case Strictness::strict:
        return target.entryDelay == Seconds{} ? Seconds{} : std::max(target.entryDelay, slow);
    }
    return {};
}

} // namespace fendrel
