#include "Platform/Linux/Applications/EntryIndex.h"

#include "Platform/Linux/Applications/ExecLine.h"

#include <algorithm>
#include <tuple>

namespace fendrel {

EntryIndex::EntryIndex(QList<DesktopEntry> entries) : m_entries(std::move(entries)) {
    std::ranges::sort(m_entries, {}, [](const DesktopEntry& entry) { return std::tuple(!entry.isOffered, entry.id); });
    const auto put = [](Positions& positions, const QString& name, qsizetype position) {
        if (!name.isEmpty())
            positions[name.toCaseFolded()].append(position);
    };
    for (qsizetype position = 0; position < m_entries.size(); ++position) {
        const DesktopEntry& entry = m_entries[position];
        m_byID.insert(entry.id, position);
        m_byPath.insert(entry.path, position);
        put(m_byFoldedID, entry.id, position);
        put(m_byStartupClass, entry.startupClass, position);
        if (entry.id.contains(u'.'))
            put(m_byLastPart, entry.id.section(u'.', -1), position);
        // A program that runs in a terminal owns no window.
        if (!entry.needsTerminal)
            put(m_byProgram, programName(entry.exec), position);
        put(m_byFlatpak, entry.flatpakID, position);
        put(m_bySnap, entry.snapName, position);
    }
}

const DesktopEntry* EntryIndex::byID(const QString& id) const {
    if (const auto exact = m_byID.constFind(id); exact != m_byID.constEnd())
        return &m_entries[*exact];
    const auto folded = at(m_byFoldedID, id);
    return folded.isEmpty() ? nullptr : folded.first();
}

const DesktopEntry* EntryIndex::byPath(const QString& path) const {
    const auto found = m_byPath.constFind(path);
    return found == m_byPath.constEnd() ? nullptr : &m_entries[*found];
}

EntryIndex::Entries EntryIndex::at(const Positions& positions, const QString& name) const {
    Entries entries;
    for (const qsizetype position : positions.value(name.toCaseFolded()))
        entries.append(&m_entries[position]);
    return entries;
}

} // namespace fendrel
