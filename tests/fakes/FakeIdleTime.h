#pragma once

#include "Ports/IdleTime.h"

namespace fendrel {

class FakeIdleTime final : public IdleTime {
public:
    std::optional<std::chrono::milliseconds> sinceLastInput() const override { return idle; }

    std::optional<std::chrono::milliseconds> idle = std::chrono::milliseconds(0);
};

} // namespace fendrel
