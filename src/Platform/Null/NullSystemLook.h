#pragma once

#include "Ports/SystemLook.h"

namespace fendrel {

class NullSystemLook final : public SystemLook {
public:
    bool isDark() const override { return false; }
    bool reducesMotion() const override { return false; }
    bool increasesContrast() const override { return false; }
    double textScale() const override { return 1; }
};

} // namespace fendrel
