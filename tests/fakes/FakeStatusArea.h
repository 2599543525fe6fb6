#pragma once

#include "Ports/StatusArea.h"

namespace fendrel {

class FakeStatusArea final : public StatusArea {
public:
    void setAvailable(bool isAvailable) {
        available = isAvailable;
        onChanged();
    }
    bool available = false;

    bool isAvailable() const override { return available; }
};

} // namespace fendrel
