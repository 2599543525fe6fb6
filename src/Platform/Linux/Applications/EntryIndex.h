#pragma once

#include "Platform/Linux/Applications/DesktopEntry.h"

#include <QHash>
#include <QList>
#include <QMultiHash>

#include <functional>

namespace fendrel {

/// A set of desktop entries, by everything by which a window can be traced to one. Names are compared without case.
/// Where several entries fit, those that the user is shown come first, then those with the smaller id.
class EntryIndex {
public:
    using Entries = QList<const DesktopEntry*>;

    EntryIndex() = default;
    explicit EntryIndex(QList<DesktopEntry> entries);

    const QList<DesktopEntry>& all() const { return m_entries; }
    const DesktopEntry* byID(const QString& id) const; ///< exact, else without case
    const DesktopEntry* byPath(const QString& path) const;
    Entries byStartupClass(const QString& name) const { return at(m_byStartupClass, name); }
    Entries byLastPartOfID(const QString& name) const { return at(m_byLastPart, name); }
    Entries byProgram(const QString& name) const { return at(m_byProgram, name); }
    Entries ofFlatpak(const QString& id) const { return at(m_byFlatpak, id); }
    Entries ofSnap(const QString& name) const { return at(m_bySnap, name); }

private:
    using Positions = QHash<QString, QList<qsizetype>>;
    Entries at(const Positions& positions, const QString& name) const;

    QList<DesktopEntry> m_entries; ///< in the order above
    QHash<QString, qsizetype> m_byID;
    QHash<QString, qsizetype> m_byPath;
    Positions m_byFoldedID;
    Positions m_byStartupClass;
    Positions m_byLastPart; ///< "Nautilus" of "org.gnome.Nautilus"
    Positions m_byProgram;
    Positions m_byFlatpak;
    Positions m_bySnap;
};

} // namespace fendrel
