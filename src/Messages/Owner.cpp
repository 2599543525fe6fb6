#include "Messages/Owner.h"

#include <algorithm>

namespace fendrel {

const Mode* owner(const QString& bundleID, const Mode& current, const QList<Mode>& modes,
                  const QSet<QString>& sharedApps) {
    const auto lists = [&](const Mode& mode) { return mode.apps.contains(bundleID, Qt::CaseInsensitive); };
    if (lists(current) || sharedApps.contains(bundleID.toLower()))
        return nullptr;
    const auto found =
        std::ranges::find_if(modes, [&](const Mode& mode) { return mode.id != current.id && lists(mode); });
    return found == modes.end() ? nullptr : &*found;
}

} // namespace fendrel
