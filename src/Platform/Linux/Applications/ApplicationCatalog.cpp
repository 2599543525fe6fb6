#include "Platform/Linux/Applications/ApplicationCatalog.h"

#include "Platform/Linux/Applications/ExecLine.h"

#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace fendrel {

using namespace Qt::StringLiterals;

ApplicationCatalog::ApplicationCatalog(QStringList folders, const DesktopEntryContext& context,
                                       ApplicationIdentity identity, Clock& clock)
    : m_identity(std::move(identity)), m_files(std::move(folders), context, clock) {
    m_files.onChanged = [this] {
        arrange();
        onChanged();
    };
    arrange();
}

void ApplicationCatalog::arrange() {
    m_entries.clear();
    const auto preference = [this](const DesktopEntry& entry) {
        return std::tuple(!entry.isOffered, m_identity.rank(entry));
    };
    for (const DesktopEntry& entry : m_files.index().all()) {
        const DesktopEntry*& chosen = m_entries[m_identity.ofEntry(entry)];
        if (chosen == nullptr || preference(entry) < preference(*chosen))
            chosen = &entry;
    }
    m_installed.clear();
    for (const auto& [bundleID, entry] : m_entries.asKeyValueRange()) {
        if (entry->isOffered)
            m_installed.append({.bundleID = bundleID, .name = entry->name});
    }
    std::ranges::sort(m_installed, {}, &InstalledApp::bundleID);
}

std::optional<QString> ApplicationCatalog::identifierAt(const QUrl& address) const {
    QString path;
    if (address.isLocalFile())
        path = address.toLocalFile();
    else if (address.scheme() == "application"_L1)
        path = address.host() + address.path(); // a host is in lower case, which finds the entry all the same
    if (!path.endsWith(".desktop"_L1))
        return {};
    const auto* entry = index().byPath(path);
    if (entry == nullptr)
        entry = index().byID(QFileInfo(path).completeBaseName());
    return entry == nullptr ? std::nullopt : std::optional(identifier(*entry));
}

ApplicationCatalog::Name ApplicationCatalog::identify(const WindowTraits& window) const {
    if (const auto* entry = entryOfWindow(window, m_files.index()))
        return {.bundleID = m_identity.ofEntry(*entry), .shown = entry->name};
    if (const auto product = m_identity.ofClass(window.className)) {
        const auto* installed = entry(*product);
        return {.bundleID = *product, .shown = installed == nullptr ? window.className : installed->name};
    }
    if (const auto* entry = entryOfProgram(window.process, m_files.index()))
        return {.bundleID = m_identity.ofEntry(*entry), .shown = entry->name};
    if (!window.className.isEmpty())
        return {.bundleID = window.className.toLower(), .shown = window.className};
    const QString program = programName(window.process.arguments);
    return {.bundleID = program, .shown = program};
}

} // namespace fendrel
