#pragma once

#include "Ports/Displays.h"

namespace fendrel {

class NullDisplays final : public Displays {
public:
    QList<Display> all() const override { return {}; }
};

} // namespace fendrel
