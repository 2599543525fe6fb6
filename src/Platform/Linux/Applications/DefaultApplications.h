#pragma once

#include "Platform/Linux/Applications/EntryIndex.h"

#include <QString>
#include <QStringList>

namespace fendrel {

/// The files in which the user and the system say which application opens what, the strongest first.
QStringList defaultApplicationFiles(const QStringList& desktops);

/// The application that opens `mimeType`: what the first of `files` says that is installed, else any that offers it.
/// nullptr when there is none.
const DesktopEntry* defaultApplication(const QString& mimeType, const QStringList& files, const EntryIndex& index);

} // namespace fendrel
