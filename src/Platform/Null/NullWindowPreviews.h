#pragma once

#include "Ports/WindowPreviews.h"

namespace fendrel {

class NullWindowPreviews final : public WindowPreviews {
public:
    bool isAvailable() const override { return false; }
    Handle follow(WindowID, QSize, Picture) override { return {}; }
};

} // namespace fendrel
