#pragma once

#include "Modes/Mode.h"

#include <QList>
#include <QSet>

#include <optional>

namespace fendrel {

/// The mode that a notification is held for: the first, other than the current one, that lists the application; null
/// when it belongs to the work at hand, to every mode (`sharedApps`, in lower case) or to none. Identifiers are
/// compared without case. Points into `modes`.
const Mode* owner(const QString& bundleID, const Mode& current, const QList<Mode>& modes,
                  const QSet<QString>& sharedApps);

} // namespace fendrel
