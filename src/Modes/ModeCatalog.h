#pragma once

#include "Modes/Mode.h"
#include "Ports/Applications.h"

#include <QSet>

namespace fendrel {

/// The built-in modes, and the applications that belong to every mode.
struct ModeCatalog {
    QSet<QString> sharedApps{};
    QList<Mode> templates{};

    /// The modes that a new user starts with.
    QList<Mode> starterTemplates() const { return templates.first(3); }

    /// The built-in catalogue, with this system's own applications added.
    static ModeCatalog with(const NativeApps& native);
};

} // namespace fendrel
