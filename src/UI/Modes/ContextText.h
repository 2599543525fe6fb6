#pragma once

#include "Modes/ModeSnapshot.h"

namespace fendrel {

/// What a snapshot would bring back, counted: "3 applications, 1 page". Empty where that is nothing.
QString contextContents(const ModeSnapshot& snapshot);

} // namespace fendrel
