#pragma once

#include "Base/WallTime.h"

#include <QString>

namespace fendrel {

/// When something was, as shortly as it can be told: the time, with the day unless it is today's; the date alone where
/// that is longer ago than a week.
QString momentText(WallTime moment, WallTime now);

} // namespace fendrel
