#include "Platform/Linux/Applications/ApplicationIdentity.h"

#include "Platform/Linux/Tables/DataTable.h"

#include <QJsonObject>

namespace fendrel {

using namespace Qt::StringLiterals;

ApplicationIdentity::ApplicationIdentity(const QJsonArray& table) {
    for (const auto row : table) {
        const QString identifier = row[u"identifier"].toString();
        const auto entries = row[u"entries"].toArray();
        for (qsizetype index = 0; index < entries.size(); ++index) {
            const QString id = entries[index].toString().toCaseFolded();
            m_byEntry.insert(id, identifier);
            m_ranks.insert(id, index);
        }
        for (const auto name : row[u"classes"].toArray())
            m_byClass.insert(name.toString().toCaseFolded(), identifier);
    }
}

ApplicationIdentity ApplicationIdentity::builtIn() {
    return ApplicationIdentity(dataTable(u"ApplicationIdentifiers"_s).array());
}

QString ApplicationIdentity::ofEntry(const DesktopEntry& entry) const {
    if (const auto known = m_byEntry.constFind(entry.id.toCaseFolded()); known != m_byEntry.constEnd())
        return *known;
    // An entry that somebody wrote for a known product, as installers of portable programs do.
    return ofClass(entry.startupClass).value_or(entry.id);
}

std::optional<QString> ApplicationIdentity::ofClass(const QString& className) const {
    const auto known = m_byClass.constFind(className.toCaseFolded());
    return known == m_byClass.constEnd() ? std::nullopt : std::optional(*known);
}

} // namespace fendrel
