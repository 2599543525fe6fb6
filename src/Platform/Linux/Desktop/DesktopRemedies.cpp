#include "Platform/Linux/Desktop/DesktopRemedies.h"

#include "Base/Log.h"
#include "Platform/Linux/Applications/DesktopEntry.h"
#include "Platform/Linux/Applications/DetachedCommand.h"
#include "Platform/Linux/Tables/DataTable.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QStandardPaths>
#include <QSysInfo>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// The rows of a thing that are meant for these surroundings, the best first.
QList<QJsonObject> rowsFor(const QString& thing, const DesktopRemedies::Surroundings& surroundings) {
    QList<QJsonObject> rows;
    for (const auto each : dataTable(u"Remedies"_s).array()) {
        const QJsonObject row = each.toObject();
        const bool isMeant =
            row[u"for"].toString() == thing &&
            (!row.contains("desktop"_L1) || surroundings.desktops.contains(row[u"desktop"].toString())) &&
            (!row.contains("system"_L1) || surroundings.system == row[u"system"].toString());
        if (isMeant)
            rows.append(row);
    }
    return rows;
}

/// As a shell takes it for one word.
QString quoted(QString text) {
    return u'\'' + text.replace("'"_L1, R"('\'')"_L1) + u'\'';
}

} // namespace

DesktopRemedies::Surroundings DesktopRemedies::ofThisSession(const QString& extension) {
    return {.desktops = DesktopEntryContext::ofThisSession().desktops,
            .system = QSysInfo::productType(),
            .extension = extension,
            .exists = [](const QString& name) {
                return name.startsWith(u'/') ? QFileInfo::exists(name)
                                             : !QStandardPaths::findExecutable(name).isEmpty();
            }};
}

QStringList DesktopRemedies::page(const QString& thing) const {
    for (const QJsonObject& row : rowsFor(thing, m_surroundings)) {
        const QStringList command = row[u"page"].toVariant().toStringList();
        if (!command.isEmpty() && m_surroundings.exists(command.first()))
            return command;
    }
    return {};
}

void DesktopRemedies::openPage(const QString& thing) {
    const QStringList command = page(thing);
    if (command.isEmpty())
        return;
    QProcess process;
    prepareDetached(process, command);
    if (!process.startDetached())
        qCWarning(logDesktop).noquote() << "Couldn't start" << command.first() << process.errorString();
}

QString DesktopRemedies::command(const QString& thing) const {
    for (const QJsonObject& row : rowsFor(thing, m_surroundings)) {
        const QString package = row[u"package"].toString();
        const QString needed = package.isEmpty() ? row[u"needs"].toString() : u"apt"_s;
        if (row.contains("page"_L1) || !m_surroundings.exists(needed))
            continue;
        QStringList steps;
        if (!package.isEmpty())
            steps.append(u"sudo apt install "_s + package);
        if (row.contains("command"_L1))
            steps.append(row[u"command"].toString().replace("%1"_L1, quoted(m_surroundings.extension)));
        return steps.join(" && "_L1);
    }
    return {};
}

} // namespace fendrel
