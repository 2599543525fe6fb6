#pragma once

#include "Ports/HotKeys.h"

namespace fendrel {

class NullHotKeys final : public HotKeys {
public:
    std::optional<Handle> grab(int, const QString&, std::function<void()>) override { return {}; }
    void yieldKeyboard() override {}
    QString label(std::uint32_t) const override { return {}; }
};

} // namespace fendrel
