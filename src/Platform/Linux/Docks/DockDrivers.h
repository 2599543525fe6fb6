#pragma once

#include "Platform/Linux/Desktop/DesktopConfiguration.h"
#include "Platform/Linux/Docks/DesktopDock.h"
#include "Ports/Clock.h"

namespace fendrel {

/// Every kind of dock that we know, the preferred ones first: who starts a dock beside the desktop's panels has chosen
/// it.
DesktopDock::Drivers dockDrivers(const std::shared_ptr<DesktopConfiguration>& configuration, Clock& clock);

} // namespace fendrel
