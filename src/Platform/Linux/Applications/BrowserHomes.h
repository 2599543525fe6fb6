#pragma once

#include "Ports/Platform.h"

namespace fendrel {

/// The browsers of this system's table, with their folders below the user's own.
QList<BrowserHome> browserHomes(const QString& home, const QString& config);

} // namespace fendrel
