#pragma once

#include "Platform/Linux/Applications/ApplicationIdentity.h"
#include "Platform/Linux/Applications/DesktopEntries.h"
#include "Platform/Linux/Applications/WindowIdentity.h"
#include "Ports/Applications.h"

#include <QUrl>

#include <functional>
#include <optional>

namespace fendrel {

/// The applications of this machine by their identifiers: desktop entries and the table of identifiers together.
/// Main thread. Entries that it hands out live until `onChanged`.
class ApplicationCatalog {
public:
    ApplicationCatalog(QStringList folders, const DesktopEntryContext& context, ApplicationIdentity identity,
                       Clock& clock);

    const QList<InstalledApp>& installed() const { return m_installed; }
    const DesktopEntry* entry(const QString& bundleID) const { return m_entries.value(bundleID); }
    const EntryIndex& index() const { return m_files.index(); }

    struct Name {
        QString bundleID{};
        QString shown{};
        bool operator==(const Name&) const = default;
    };
    Name identify(const WindowTraits& window) const;
    QString identifier(const DesktopEntry& entry) const { return m_identity.ofEntry(entry); }
    /// Of the application that a desktop entry's file or an address such as "application://org.gnome.Maps.desktop"
    /// stands for; the file may be a copy. Nothing for anything else.
    std::optional<QString> identifierAt(const QUrl& address) const;

    std::function<void()> onChanged = [] {};

private:
    void arrange();

    ApplicationIdentity m_identity;
    DesktopEntries m_files;
    QHash<QString, const DesktopEntry*> m_entries; ///< identifier -> the entry that stands for it
    QList<InstalledApp> m_installed;
};

} // namespace fendrel
