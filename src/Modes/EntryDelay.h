#pragma once

#include "App/PreferenceTypes.h"
#include "Modes/Mode.h"

namespace fendrel {

/// How long entering a mode has to wait. A mode whose daily allowance is spent is always entered slowly, focus session
/// or not; otherwise only a focus session makes a switch wait, by its strictness.
Seconds entryDelay(const Mode& target, bool isAllowanceSpent, bool isFocusOn, Strictness strictness);

} // namespace fendrel
