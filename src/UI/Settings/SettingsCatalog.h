#pragma once

#include <QList>
#include <QString>

namespace fendrel {

/// What the settings window tells of one setting: rows, search and reset take it from here.
struct SettingEntry {
    QString setting{}; ///< the name of the property in `Preferences`, where it is one; of a pane itself, the pane
    QString pane{};
    QString label{};
    QString help{};  ///< one sentence
    QString words{}; ///< by which people may look for it, too, with spaces between them
};

/// All settings, in the order in which the panes show them and in the user's language; before those of a pane, the
/// pane itself.
namespace settingsCatalog {

QList<SettingEntry> entries();
SettingEntry entry(const QString& setting); ///< an empty one for a name that is none
QStringList settingsOf(const QString& pane);
/// What replacing the system's dock does, where that dock may be none.
QString dockHelp(const QString& systemDock, bool replaces);

} // namespace settingsCatalog

} // namespace fendrel
