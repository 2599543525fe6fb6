#include "Modes/ModeIndex.h"

namespace fendrel {

ModeIndex::ModeIndex(const QList<Mode>& modes) {
    for (qsizetype position = 0; position < modes.size(); ++position) {
        for (const QString& app : modes[position].apps)
            add(m_apps, app, position);
        for (const QString& site : modes[position].sites)
            add(m_sites, site, position);
    }
}

void ModeIndex::add(Table& table, const QString& key, qsizetype position) {
    Owners& owners = table[key];
    if (owners.first < 0)
        owners.first = position;
    else
        owners.others.append(position);
}

std::optional<qsizetype> ModeIndex::ownerOfApp(const QString& bundleID, qsizetype preferred) const {
    const auto found = m_apps.constFind(bundleID);
    if (found == m_apps.constEnd())
        return {};
    return found->others.contains(preferred) ? preferred : found->first;
}

std::optional<qsizetype> ModeIndex::ownerOfSite(const QString& host, qsizetype preferred) const {
    std::optional<qsizetype> owner;
    // Every mode that lists the host lists one of its suffixes that begin at a label.
    for (qsizetype start = 0; start >= 0;) {
        const auto suffix = QString::fromRawData(host.constData() + start, host.size() - start);
        if (const auto found = m_sites.constFind(suffix); found != m_sites.constEnd()) {
            if (found->first == preferred || found->others.contains(preferred))
                return preferred;
            if (!owner || found->first < *owner)
                owner = found->first;
        }
        const qsizetype dot = host.indexOf(u'.', start);
        start = dot < 0 ? -1 : dot + 1;
    }
    return owner;
}

} // namespace fendrel
