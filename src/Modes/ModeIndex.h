#pragma once

#include "Modes/Mode.h"

#include <QHash>

#include <optional>

namespace fendrel {

/// Finds the mode that lists an application or a site, in a time that does not grow with the lists. Positions are those
/// in the list it was made from.
class ModeIndex {
public:
    ModeIndex() = default;
    explicit ModeIndex(const QList<Mode>& modes);

    /// The preferred position if that mode lists it, else the first that does. A preferred position of -1 prefers none.
    std::optional<qsizetype> ownerOfApp(const QString& bundleID, qsizetype preferred = -1) const;
    /// The same for a host, which belongs to a mode that lists it or a domain above it.
    std::optional<qsizetype> ownerOfSite(const QString& host, qsizetype preferred = -1) const;

private:
    struct Owners {
        qsizetype first = -1;
        QList<qsizetype> others;
    };
    using Table = QHash<QString, Owners>;
    static void add(Table& table, const QString& key, qsizetype position);

    Table m_apps;
    Table m_sites;
};

} // namespace fendrel
