#pragma once

#include "Base/Seconds.h"
#include "Modes/Tint.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace fendrel {

/// A named way of working: the applications and sites that belong to it, and what entering and staying costs.
struct Mode {
    QString id{};
    QString name{};
    QString symbol{}; ///< name of a symbol picture
    Tint tint{Tint::graphite};
    QStringList apps{};  ///< bundle identifiers, in dock order
    QStringList sites{}; ///< host names in lower case
    Seconds entryDelay{};
    QStringList widgets{};
    Seconds dailyBudget{}; ///< allowance of a day; none when 0 or less

    bool operator==(const Mode&) const = default;

    /// Whether a host is one of the sites or a subdomain of one. Exact to the letter: hosts come in lower case.
    static bool site(const QString& host, const QStringList& sites);

    /// A copy that keeps only the applications for which `isInstalled` holds.
    Mode keepingInstalledApps(const std::function<bool(const QString&)>& isInstalled) const;
};

} // namespace fendrel
