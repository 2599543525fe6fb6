#pragma once

#include "Platform/Linux/Applications/EntryIndex.h"
#include "Ports/Clock.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFileSystemWatcher>

#include <functional>
#include <optional>

namespace fendrel {

/// The desktop entries of this machine, read again when their folders change. Main thread.
class DesktopEntries {
public:
    /// Of an entry that stands in several folders, the one in the first of them counts.
    DesktopEntries(QStringList folders, DesktopEntryContext context, Clock& clock);

    /// Where entries are kept, the user's own folder first.
    static QStringList standardFolders();

    const EntryIndex& index() const { return m_index; }

    std::function<void()> onChanged = [] {};

private:
    struct Known {
        QDateTime modified{};
        qint64 size{};
        std::optional<DesktopEntry> entry{};
    };

    EntryIndex read();
    const std::optional<DesktopEntry>& entryAt(const QFileInfo& file);
    void watch(const QStringList& paths);

    QStringList m_folders;
    DesktopEntryContext m_context;
    Clock& m_clock;
    EntryIndex m_index;
    QHash<QString, Known> m_known; ///< what was read, by path, so that a change of one entry reads one file
    QFileSystemWatcher m_watcher;
    Handle m_changes;
};

} // namespace fendrel
