#include "Platform/Linux/Applications/IconTheme.h"

#include "Platform/Linux/Applications/KeyFile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <tuple>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr int largest = 256;
constexpr int smallestForDock = 48; ///< a smaller one is only taken when no theme has better

const QStringList extensions{u".svg"_s, u".png"_s, u".xpm"_s};

/// Drawings before pictures; of pictures the largest up to the limit, then the smallest beyond it.
std::tuple<int, int> preference(int size, bool isScalable) {
    if (isScalable)
        return {0, 0};
    return size <= largest ? std::tuple(1, -size) : std::tuple(2, size);
}

QString fileIn(const QString& folder, const QString& icon, const QStringList& endings) {
    for (const QString& ending : endings) {
        if (QString path = folder + u'/' + icon + ending; QFileInfo(path).isFile())
            return path;
    }
    return {};
}

} // namespace

IconTheme::IconTheme(const QString& name, QStringList folders, QStringList loose)
    : m_folders(std::move(folders)), m_loose(std::move(loose)), m_unread{name, u"Adwaita"_s, u"hicolor"_s} {}

QStringList IconTheme::standardFolders() {
    QStringList folders{QDir::homePath() + u"/.icons"_s};
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders.append(QDir::cleanPath(folder) + u"/icons"_s);
    folders << QDir::homePath() + u"/.local/share/flatpak/exports/share/icons"_s
            << u"/var/lib/flatpak/exports/share/icons"_s << u"/var/lib/snapd/desktop/icons"_s;
    folders.removeDuplicates();
    return folders;
}

QStringList IconTheme::standardLooseFolders() {
    QStringList folders = standardFolders();
    folders.append(u"/usr/local/share/pixmaps"_s);
    folders.append(u"/usr/share/pixmaps"_s);
    return folders;
}

bool IconTheme::readNext() {
    while (!m_unread.isEmpty()) {
        const QString name = m_unread.takeFirst();
        // Everything falls back to hicolor in the end, so a theme that names it must not bring it forward.
        const bool comesLater = name == "hicolor"_L1 && !m_unread.isEmpty();
        if (name.isEmpty() || m_read.contains(name) || comesLater)
            continue;
        m_read.append(name);
        read(name);
        return true;
    }
    return false;
}

void IconTheme::read(const QString& name) {
    KeyFile index;
    QStringList roots;
    for (const QString& folder : m_folders) {
        const QString root = folder + u'/' + name;
        if (!QFileInfo(root).isDir())
            continue;
        roots.append(root);
        if (index.isEmpty())
            index = readKeyFile(root + u"/index.theme"_s);
    }
    const auto theme = index.value(u"Icon Theme"_s);
    const QString subfolders = theme.value(u"Directories"_s) + u',' + theme.value(u"ScaledDirectories"_s);
    m_themes.append(foldersOf(roots, subfolders.split(u',', Qt::SkipEmptyParts), index));
    QStringList parents;
    for (const QString& parent : theme.value(u"Inherits"_s).split(u',', Qt::SkipEmptyParts))
        parents.append(parent.trimmed());
    m_unread = parents + m_unread;
}

QList<IconTheme::Folder> IconTheme::foldersOf(const QStringList& roots, const QStringList& subfolders,
                                              const KeyFile& index) {
    QList<Folder> folders;
    for (const QString& subfolder : subfolders) {
        const auto keys = index.value(subfolder);
        const int scale = std::max(1, keys.value(u"Scale"_s).toInt());
        const bool isScalable = keys.value(u"Type"_s).compare("Scalable"_L1, Qt::CaseInsensitive) == 0;
        const int size = keys.value(u"Size"_s).toInt() * scale;
        for (const QString& root : roots) {
            if (const QString path = root + u'/' + subfolder; QFileInfo(path).isDir())
                folders.append({.path = path, .size = size, .isScalable = isScalable});
        }
    }
    std::ranges::stable_sort(folders, {},
                             [](const Folder& folder) { return preference(folder.size, folder.isScalable); });
    return folders;
}

QString IconTheme::find(const QString& icon) {
    if (icon.isEmpty())
        return {};
    if (QDir::isAbsolutePath(icon))
        return QFileInfo(icon).isFile() ? icon : QString();
    // Some entries name a file of a theme, against the standard.
    QString name = icon;
    for (const QString& extension : extensions) {
        if (name.endsWith(extension))
            name.chop(extension.size());
    }
    QString small;
    for (qsizetype index = 0; index < m_themes.size() || readNext(); ++index) {
        for (const Folder& folder : std::as_const(m_themes)[index]) {
            QString file = fileIn(folder.path, name, extensions);
            if (file.isEmpty())
                continue;
            // A drawing may stand in a folder of small sizes. It still scales.
            if (folder.isScalable || folder.size >= smallestForDock || file.endsWith(".svg"_L1))
                return file;
            if (small.isEmpty())
                small = file;
            break;
        }
    }
    for (const QString& folder : m_loose) {
        if (QString file = fileIn(folder, name, extensions); !file.isEmpty())
            return file;
    }
    return small;
}

} // namespace fendrel
