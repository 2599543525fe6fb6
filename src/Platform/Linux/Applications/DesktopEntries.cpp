#include "Platform/Linux/Applications/DesktopEntries.h"

#include "Platform/Linux/Applications/WatchableFolder.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <chrono>

namespace fendrel {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr auto changesSettle = 500ms; // an installation touches a folder many times
constexpr qint64 sizeLimit = 1 << 20;

QString idOf(const QString& folder, const QString& path) {
    QString id = path.sliced(folder.size() + 1);
    id.chop(8);
    return id.replace(u'/', u'-');
}

} // namespace

DesktopEntries::DesktopEntries(QStringList folders, DesktopEntryContext context, Clock& clock)
    : m_folders(std::move(folders)), m_context(std::move(context)), m_clock(clock) {
    const auto changed = [this] {
        m_changes = m_clock.after(changesSettle, [this] {
            EntryIndex fresh = read();
            // What was handed out lives until something is said to have changed.
            if (fresh.all() == m_index.all())
                return;
            m_index = std::move(fresh);
            onChanged();
        });
    };
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher, changed);
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, changed);
    m_index = read();
}

QStringList DesktopEntries::standardFolders() {
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    // Sessions that were not started through a login shell often lack these.
    folders << folders.value(0) + u"/flatpak/exports/share"_s << u"/var/lib/flatpak/exports/share"_s
            << u"/var/lib/snapd/desktop"_s;
    for (QString& folder : folders)
        folder = QDir::cleanPath(folder) + u"/applications"_s;
    folders.removeDuplicates();
    return folders;
}

EntryIndex DesktopEntries::read() {
    QHash<QString, DesktopEntry> entries;
    QStringList toWatch;
    const QHash<QString, Known> before = std::exchange(m_known, {});
    for (const QString& folder : m_folders) {
        toWatch.append(watchable(folder));
        QDirIterator files(folder, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QFileInfo file = files.nextFileInfo();
            const QString path = file.filePath();
            if (file.isDir()) {
                toWatch.append(path);
                continue;
            }
            if (!path.endsWith(".desktop"_L1))
                continue;
            // What is written into a file of the user's own changes nothing in its folder.
            if (folder == m_folders.first())
                toWatch.append(path);
            const QString id = idOf(folder, path);
            if (entries.contains(id))
                continue;
            if (const auto known = before.constFind(path); known != before.constEnd())
                m_known.insert(path, *known);
            if (auto entry = entryAt(file)) {
                entry->id = id;
                entry->path = path;
                entries.insert(id, *entry);
            }
        }
    }
    entries.removeIf([](const auto& item) {
        const DesktopEntry& entry = *item;
        return entry.isHidden || (!entry.tryExec.isEmpty() && QStandardPaths::findExecutable(entry.tryExec).isEmpty());
    });
    watch(toWatch);
    return EntryIndex(entries.values());
}

const std::optional<DesktopEntry>& DesktopEntries::entryAt(const QFileInfo& file) {
    Known& known = m_known[file.filePath()];
    const QDateTime modified = file.lastModified();
    if (known.modified == modified && known.size == file.size())
        return known.entry;
    known = {.modified = modified, .size = file.size(), .entry = {}};
    QFile content(file.filePath());
    if (content.open(QIODevice::ReadOnly))
        known.entry = parseDesktopEntry(content.read(sizeLimit), m_context);
    return known.entry;
}

void DesktopEntries::watch(const QStringList& paths) {
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList added;
    for (const QString& path : paths) {
        if (!watched.contains(path) && !added.contains(path))
            added.append(path);
    }
    if (!added.isEmpty())
        m_watcher.addPaths(added);
}

} // namespace fendrel
