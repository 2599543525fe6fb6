#include "Modes/Mode.h"

#include <algorithm>

namespace fendrel {

bool Mode::site(const QString& host, const QStringList& sites) {
    return std::ranges::any_of(sites, [&](const QString& listed) {
        return host.endsWith(listed) && (host.size() == listed.size() || host[host.size() - listed.size() - 1] == u'.');
    });
}

Mode Mode::keepingInstalledApps(const std::function<bool(const QString&)>& isInstalled) const {
    Mode kept = *this;
    kept.apps.removeIf([&](const QString& bundleID) { return !isInstalled(bundleID); });
    return kept;
}

} // namespace fendrel
