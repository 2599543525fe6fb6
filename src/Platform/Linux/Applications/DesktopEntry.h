#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel {

/// Something besides itself that an application can be started for.
struct DesktopAction {
    QString id{};
    QString name{}; ///< in the user's language
    QString exec{}; ///< empty only where the application is started over D-Bus
    QString icon{};
    bool operator==(const DesktopAction&) const = default;
};

/// An application as its desktop entry describes it.
struct DesktopEntry {
    QString id{};   ///< without ".desktop"
    QString path{}; ///< of the file
    QString name{}; ///< in the user's language
    QString exec{};
    QString tryExec{};
    QString icon{};
    QString workingFolder{};
    QString startupClass{};
    QString flatpakID{};
    QString snapName{};
    QStringList mimeTypes{};
    QStringList categories{};
    QList<DesktopAction> actions{}; ///< in the entry's order
    bool needsTerminal{};
    bool isDBusActivatable{};
    bool isHidden{};  ///< counts as deleted: it only keeps entries of the same id from being seen
    bool isOffered{}; ///< to be shown to the user on this desktop
    bool operator==(const DesktopEntry&) const = default;
};

/// What the reading of an entry depends on.
struct DesktopEntryContext {
    QStringList locales{};  ///< the best first, as suffixes of keys: "de_DE", "de"
    QStringList desktops{}; ///< what the running desktop calls itself ($XDG_CURRENT_DESKTOP)

    static DesktopEntryContext ofThisSession();
};

/// Locale suffixes for a value such as "de_DE.UTF-8@euro", the best first.
QStringList localeSuffixes(const QString& locale);

/// Reads the content of a desktop entry; `id` and `path` are left empty. Nothing when it is none that starts an
/// application, or is broken.
std::optional<DesktopEntry> parseDesktopEntry(QByteArrayView content, const DesktopEntryContext& context);

/// The strings of a list value, which is separated by ";". Escapes are undone.
QStringList desktopEntryList(QStringView value);

} // namespace fendrel
