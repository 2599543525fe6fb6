#pragma once

#include "Ports/Platform.h"

#include <QSet>

namespace fendrel::hostManifests {

/// The file by which a browser of that family finds the relay and knows who may start it. Its form is that of native
/// messaging hosts in Chromium's and Mozilla's documentation.
QByteArray manifest(BrowserHome::Family family, const QString& relay);

/// Writes the manifest for every browser whose folder exists, where it is missing or differs. A file there that is not
/// ours is kept under another name. Where it cannot be written, with a line in the log, its path joins `failed`, and is
/// left alone from then on. Blocks on the disk.
void install(const QList<BrowserHome>& browsers, const QString& relay, QSet<QString>& failed);

/// Removes what `install` wrote. Returns the paths. Blocks on the disk.
QStringList uninstall(const QList<BrowserHome>& browsers);

} // namespace fendrel::hostManifests
