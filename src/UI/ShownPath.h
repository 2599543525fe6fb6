#pragma once

#include <QString>

namespace fendrel {

/// A path as people write it: what is in the home folder begins with "~/".
QString shownPath(const QString& path);

/// The path of what somebody typed or dropped: a path, from the home folder on where it is not a whole one, or the
/// address of a file.
QString typedPath(const QString& typed);

} // namespace fendrel
