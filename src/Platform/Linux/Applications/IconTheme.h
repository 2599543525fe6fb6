#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace fendrel {

/// Finds icons by name in the desktop's icon theme and those that it builds on.
class IconTheme {
public:
    /// `folders` hold themes, the strongest first; `loose` hold icons that belong to no theme.
    IconTheme(const QString& name, QStringList folders, QStringList loose);

    static QStringList standardFolders();
    static QStringList standardLooseFolders();

    /// The path of the icon's file, best for a dock: a drawing that scales, else the largest picture that is no wider
    /// than 256 pixels. `icon` may be a path itself. Empty when there is none.
    QString find(const QString& icon);

private:
    struct Folder {
        QString path{}; ///< one that exists
        int size{};     ///< pixels
        bool isScalable{};
    };

    bool readNext(); ///< one more theme, while there is one
    void read(const QString& name);
    static QList<Folder> foldersOf(const QStringList& roots, const QStringList& subfolders,
                                   const QHash<QString, QHash<QString, QString>>& index);

    QStringList m_folders;
    QStringList m_loose;
    QStringList m_unread; ///< most icons are in the first theme, and the others take a while to read
    QStringList m_read;
    QList<QList<Folder>> m_themes; ///< the strongest theme first; in each the best folder first
};

} // namespace fendrel
