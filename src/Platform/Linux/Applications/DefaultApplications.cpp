#include "Platform/Linux/Applications/DefaultApplications.h"

#include "Platform/Linux/Applications/KeyFile.h"

#include <QStandardPaths>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

QStringList defaultApplicationFiles(const QStringList& desktops) {
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders.append(folder + u"/applications"_s);
    QStringList files;
    for (const QString& folder : folders) {
        for (const QString& desktop : desktops)
            files.append(u"%1/%2-mimeapps.list"_s.arg(folder, desktop.toLower()));
        files.append(folder + u"/mimeapps.list"_s);
    }
    return files;
}

const DesktopEntry* defaultApplication(const QString& mimeType, const QStringList& files, const EntryIndex& index) {
    for (const QString& path : files) {
        const auto defaults = readKeyFile(path).value(u"Default Applications"_s);
        for (QString id : desktopEntryList(defaults.value(mimeType))) {
            if (id.endsWith(".desktop"_L1))
                id.chop(8);
            if (const auto* entry = index.byID(id))
                return entry;
        }
    }
    const auto& all = index.all();
    const auto offered = std::ranges::find_if(
        all, [&](const DesktopEntry& entry) { return entry.isOffered && entry.mimeTypes.contains(mimeType); });
    return offered == all.end() ? nullptr : &*offered;
}

} // namespace fendrel
