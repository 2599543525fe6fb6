#pragma once

#include "Ports/SystemLook.h"

namespace fendrel {

class FakeLook final : public SystemLook {
public:
    bool isDark() const override { return m_isDark; }
    bool reducesMotion() const override { return m_reducesMotion; }

    void setDark(bool isDark) {
        m_isDark = isDark;
        onChanged();
    }
    void setReducesMotion(bool reducesMotion) {
        m_reducesMotion = reducesMotion;
        onChanged();
    }

private:
    bool m_isDark = false;
    bool m_reducesMotion = false;
};

} // namespace fendrel
