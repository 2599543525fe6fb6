#pragma once

#include "Platform/Linux/Applications/DesktopEntry.h"

#include <QHash>
#include <QJsonArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel {

/// The identifiers of products that other systems have too, so that one mode fits every machine. A table names each
/// product's desktop entries (of its packages, Flatpaks and snaps) and its window classes. Any other application is
/// named by its desktop entry.
class ApplicationIdentity {
public:
    explicit ApplicationIdentity(const QJsonArray& table);
    static ApplicationIdentity builtIn();

    QString ofEntry(const DesktopEntry& entry) const;
    std::optional<QString> ofClass(const QString& className) const; ///< nothing for what is not in the table

    /// Where the entry stands among those of its product: a lower rank is preferred. 0 for other applications.
    qsizetype rank(const DesktopEntry& entry) const { return m_ranks.value(entry.id.toCaseFolded()); }

private:
    QHash<QString, QString> m_byEntry; ///< names in folded case
    QHash<QString, QString> m_byClass;
    QHash<QString, qsizetype> m_ranks;
};

} // namespace fendrel
