#pragma once

#include "Ports/Platform.h"

namespace fendrel::hostManifests {

/// The file by which a browser of that family finds the relay and knows who may start it. Its form is that of native
/// messaging hosts in Chromium's and Mozilla's documentation.
QByteArray manifest(BrowserHome::Family family, const QString& relay);

/// Writes the manifest for every browser whose folder exists, where it is missing or differs. A file there that is not
/// ours is kept under another name. Blocks on the disk.
void install(const QList<BrowserHome>& browsers, const QString& relay);

/// Removes what `install` wrote. Returns the paths. Blocks on the disk.
QStringList uninstall(const QList<BrowserHome>& browsers);

} // namespace fendrel::hostManifests
