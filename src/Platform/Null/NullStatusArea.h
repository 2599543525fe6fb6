#pragma once

#include "Ports/StatusArea.h"

namespace fendrel {

class NullStatusArea : public StatusArea {
public:
    bool isAvailable() const override { return false; }
};

} // namespace fendrel
