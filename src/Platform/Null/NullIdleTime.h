#pragma once

#include "Ports/IdleTime.h"

namespace fendrel {

class NullIdleTime final : public IdleTime {
public:
    std::optional<std::chrono::milliseconds> sinceLastInput() const override { return {}; }
};

} // namespace fendrel
