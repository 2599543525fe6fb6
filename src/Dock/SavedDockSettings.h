#pragma once

#include "Ports/SystemDock.h"

#include <QByteArray>

#include <optional>

namespace fendrel {

/// Whether these are the settings that keep a dock away for good.
bool isHiding(const SystemDockSettings& settings);
SystemDockSettings hidingSettings(const QString& dock);

QByteArray toJson(const SystemDockSettings& settings); ///< what is absent is left out
/// Nothing for what is not such a record.
std::optional<SystemDockSettings> systemDockSettingsFromJson(const QByteArray& json);

} // namespace fendrel
