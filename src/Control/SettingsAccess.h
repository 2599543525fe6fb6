#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel {

class Preferences;

/// The settings by name, for scripts. The names are those of the properties of `Preferences`.
namespace control::SettingsAccess {

QStringList names(const Preferences& preferences);
std::optional<QJsonValue> get(const Preferences& preferences, const QString& name);

/// Changes a setting from what a person typed: a boolean as true, false, on, off; a modifier mask as a number or as
/// words such as "control+option"; a look as its JSON object or the name of a preset; a shortcut as its JSON object or
/// "none". Returns why not, as one line; nothing when it is done.
std::optional<QString> set(Preferences& preferences, const QString& name, const QString& text);

/// Lets the default of a setting apply again; of `appearance`, in the look that is shown. Why not, as above.
std::optional<QString> reset(Preferences& preferences, const QString& name);

} // namespace control::SettingsAccess
} // namespace fendrel
