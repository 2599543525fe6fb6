#pragma once

#include "Base/WallTime.h"
#include "Widgets/Revenue/Money.h"

namespace fendrel {

/// Something sold, or with a negative amount something paid back.
struct Sale {
    Money money{};
    WallTime created{};
    QString customer{}; ///< empty: the provider doesn't say
    bool operator==(const Sale&) const = default;
};

} // namespace fendrel
