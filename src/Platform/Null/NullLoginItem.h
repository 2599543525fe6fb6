#pragma once

#include "Ports/LoginItem.h"

namespace fendrel {

class NullLoginItem final : public LoginItem {
public:
    bool isOn() const override { return false; }
    void set(bool) override {}
};

} // namespace fendrel
