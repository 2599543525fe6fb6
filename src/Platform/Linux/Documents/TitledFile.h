#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel {

/// The file that a window is called after: the one with the longest name that stands in the title as a whole. Of
/// several of that name, the one whose folder is named there, too, or else the first.
std::optional<QString> titledFile(const QString& title, const QStringList& files);

} // namespace fendrel
