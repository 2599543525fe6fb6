#pragma once

#include "Ports/SystemLook.h"

namespace fendrel {

class FakeLook final : public SystemLook {
public:
    bool isDark() const override { return m_isDark; }
    bool reducesMotion() const override { return false; }
    bool increasesContrast() const override { return false; }
    double textScale() const override { return scale; }

    double scale = 1;

    void setDark(bool isDark) {
        m_isDark = isDark;
        onChanged();
    }

private:
    bool m_isDark = false;
};

} // namespace fendrel
