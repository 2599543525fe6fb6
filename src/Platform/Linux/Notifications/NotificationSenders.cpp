#include "Platform/Linux/Notifications/NotificationSenders.h"

#include "Platform/Linux/Applications/ExecLine.h"
#include "Platform/Linux/Tables/DataTable.h"

#include <QJsonArray>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

NotificationSenders::NotificationSenders(std::shared_ptr<const ApplicationCatalog> catalog)
    : m_catalog(std::move(catalog)) {
    for (const auto name : dataTable(u"SystemServices"_s).array())
        m_services.insert(name.toString());
}

QString NotificationSenders::application(const ShownNotification& notification, const ProcessFacts& process) const {
    if (const auto* entry = entryOf(notification, process))
        return m_catalog->identifier(*entry);
    if (!notification.declaredEntry.isEmpty())
        return m_catalog->identifier({.id = notification.declaredEntry});
    if (!notification.appName.isEmpty())
        return m_catalog->identify({.className = notification.appName}).bundleID;
    return process.executable.section(u'/', -1); // not its arguments, which may hold anything
}

bool NotificationSenders::isCritical(const ShownNotification& notification, const ProcessFacts& process) const {
    if (!notification.isUrgent)
        return false;
    return notification.category.startsWith("device"_L1) || m_services.contains(notification.declaredEntry) ||
           m_services.contains(programName(process.arguments)) ||
           m_services.contains(process.executable.section(u'/', -1));
}

const DesktopEntry* NotificationSenders::entryOf(const ShownNotification& notification,
                                                 const ProcessFacts& process) const {
    const EntryIndex& index = m_catalog->index();
    const QString& declared = notification.declaredEntry;
    if (const auto* entry = entryOfWindow({.declaredEntry = declared, .process = process}, index))
        return entry;
    // A product that is installed under another name: one packager's entry instead of another's.
    if (const auto product = m_catalog->identifier({.id = declared}); product != declared) {
        if (const auto* entry = m_catalog->entry(product))
            return entry;
    }
    if (const auto* entry = entryOfProgram(process, index))
        return entry;
    return entryNamed(notification.appName);
}

const DesktopEntry* NotificationSenders::entryNamed(const QString& name) const {
    if (name.isEmpty())
        return nullptr;
    const auto& entries = m_catalog->index().all();
    const auto found = std::ranges::find_if(
        entries, [&](const DesktopEntry& entry) { return entry.name.compare(name, Qt::CaseInsensitive) == 0; });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace fendrel
