#pragma once

#include "App/PreferenceTypes.h"
#include "Ports/Displays.h"

#include <QList>
#include <QPoint>
#include <QString>

#include <optional>

namespace fendrel {

/// The displays that carry a dock. The active one falls back to the main one when it is not known or gone.
QList<Display> dockScreens(const QList<Display>& displays, DockDisplay setting,
                           const std::optional<QString>& activeDisplay);

/// The display that a point of the desktop lies on; nothing for a point beside all of them.
std::optional<Display> displayAt(const QList<Display>& displays, QPoint point);

} // namespace fendrel
