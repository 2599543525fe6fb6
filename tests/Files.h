#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace fendrel {

/// The file's content; nothing when it cannot be read.
inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes or overwrites the file, and its folder.
inline void putFile(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// As in chmod; 0 when there is no such file.
inline unsigned permissionsOf(const QString& path) {
    struct stat facts {};
    return stat(QFile::encodeName(path).constData(), &facts) == 0 ? facts.st_mode & 07777U : 0U;
}

} // namespace fendrel
