#pragma once

#include "Base/Seconds.h"

#include <QString>

#include <optional>

namespace fendrel::control {

/// A length of time as people type it: "90s", "25m", "1h30m". Nothing for anything else, and for zero.
std::optional<Seconds> parseDuration(const QString& text);

} // namespace fendrel::control
