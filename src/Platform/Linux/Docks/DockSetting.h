#pragma once

#include "Ports/SystemDock.h"

#include <QMap>

namespace fendrel {

/// One of the settings that together keep a dock away.
struct DockSetting {
    QString name{};   ///< among those of its dock
    QString now{};    ///< what is in force, in the notation of whoever keeps it
    bool isSet{};     ///< it is not merely the default
    QString hiding{}; ///< what keeps the dock away
};

/// What settings become, by name. Nothing: their default.
using DockChanges = QMap<QString, std::optional<QString>>;

/// All are in `details`, as they are and null where not set. `autohide` and `delay` tell whether the dock is hidden, as
/// a whole and by us: docks consist of several panels, with several settings each, and no two values say enough of
/// them.
SystemDockSettings settingsOf(const QString& dock, const QList<DockSetting>& now);

/// What makes settings as they are wanted. What does not keep the dock away any more is the user's, and stays.
DockChanges changesTo(const SystemDockSettings& wanted, const QList<DockSetting>& now);

/// The edge of this name; nothing for the upper one, where menu bars are, which stay.
std::optional<Qt::Edge> dockEdge(const QString& name);

} // namespace fendrel
