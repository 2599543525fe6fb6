#include "Platform/Linux/Desktop/DesktopRemedies.h"

#include "Base/Log.h"
#include "Platform/Linux/Applications/DesktopEntry.h"
#include "Platform/Linux/Applications/DetachedCommand.h"
#include "Platform/Linux/Tables/DataTable.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QStandardPaths>
#include <QSysInfo>

#include <unistd.h>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// As a shell takes it for one word.
QString quoted(QString text) {
    return u'\'' + text.replace("'"_L1, R"('\'')"_L1) + u'\'';
}

bool exists(const QString& name) {
    return name.startsWith(u'/') ? QFileInfo::exists(name) : !QStandardPaths::findExecutable(name).isEmpty();
}

/// Who may write to a folder above can move this one away.
bool isChangeable(const QString& folder) {
    QString path = QFileInfo(folder).canonicalFilePath();
    while (!path.isEmpty()) {
        const QFileInfo info(path);
        if (info.isWritable() || info.ownerId() == geteuid())
            return true;
        if (info.isRoot())
            return false;
        path = info.path();
    }
    return true;
}

} // namespace

DesktopRemedies::DesktopRemedies(Surroundings surroundings) : m_surroundings(std::move(surroundings)) {
    for (const auto each : dataTable(u"Remedies"_s).array()) {
        const QJsonObject entry = each.toObject();
        const bool isMeant =
            (!entry.contains("desktop"_L1) || m_surroundings.desktops.contains(entry[u"desktop"].toString())) &&
            (!entry.contains("system"_L1) || m_surroundings.system == entry[u"system"].toString());
        if (isMeant)
            m_rows.append(row(entry));
    }
}

DesktopRemedies::Surroundings DesktopRemedies::ofThisSession(const QString& extension) {
    return {.desktops = DesktopEntryContext::ofThisSession().desktops,
            .system = QSysInfo::productType(),
            .extension = extension,
            .exists = exists,
            .isChangeable = isChangeable};
}

DesktopRemedies::Row DesktopRemedies::row(const QJsonObject& entry) const {
    const QString package = entry[u"package"].toString();
    const QString link = entry[u"link"].toString();
    QStringList steps;
    if (!package.isEmpty())
        steps.append(u"sudo apt install "_s + package);
    if (!link.isEmpty())
        steps.append(u"sudo ln -sfn %1 %2"_s.arg(quoted(m_surroundings.extension), quoted(link)));
    if (entry.contains("command"_L1))
        steps.append(entry[u"command"].toString());
    return {.thing = entry[u"for"].toString(),
            .page = entry[u"page"].toVariant().toStringList(),
            .needed = package.isEmpty() ? entry[u"needs"].toString() : u"apt"_s,
            .command = steps.join(" && "_L1),
            .link = link};
}

QHash<QString, Remedy> DesktopRemedies::find() const {
    QHash<QString, Remedy> remedies;
    for (const Row& row : m_rows) {
        Remedy& remedy = remedies[row.thing];
        if (!row.page.isEmpty()) {
            if (remedy.page.isEmpty() && m_surroundings.exists(row.page.first()))
                remedy.page = row.page;
        } else if (!row.link.isEmpty() && m_surroundings.exists(row.link)) {
            remedy.isInstalled = true;
        } else if (remedy.command.isEmpty() && m_surroundings.exists(row.needed) &&
                   (row.link.isEmpty() || !m_surroundings.isChangeable(m_surroundings.extension))) {
            // What every user's browser loads must not be open to the programs of one.
            remedy.command = row.command;
        }
    }
    return remedies;
}

void DesktopRemedies::open(const QStringList& page) {
    if (page.isEmpty())
        return;
    QProcess process;
    prepareDetached(process, page);
    if (!process.startDetached())
        qCWarning(logDesktop).noquote() << "Couldn't start" << page.first() << process.errorString();
}

} // namespace fendrel
