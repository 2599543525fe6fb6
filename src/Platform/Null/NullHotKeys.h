#pragma once

#include "Ports/HotKeys.h"

namespace fendrel {

class NullHotKeys final : public HotKeys {
public:
    std::optional<Handle> grab(int, const QString&, std::function<void()>) override { return {}; }
};

} // namespace fendrel
