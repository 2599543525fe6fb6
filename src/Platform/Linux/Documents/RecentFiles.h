#pragma once

#include <QByteArray>
#include <QStringList>

namespace fendrel {

/// Paths of the local files in the desktop's list of what was used recently, the latest first. The list is that of the
/// Desktop Bookmark Specification; of a broken one, what comes before the break.
QStringList recentFiles(const QByteArray& list);

} // namespace fendrel
