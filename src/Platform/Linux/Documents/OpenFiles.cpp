#include "Platform/Linux/Documents/OpenFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrl>

#include <fcntl.h>

#include <algorithm>

namespace fendrel::openFiles {

using namespace Qt::StringLiterals;

namespace {

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What is only ever added to is a log, whatever it is called.
bool isAppended(const QByteArray& facts) {
    const qsizetype flags = facts.indexOf("flags:");
    const QByteArray octal = flags < 0 ? QByteArray() : facts.mid(flags + 6, facts.indexOf('\n', flags) - flags - 6);
    return (octal.trimmed().toInt(nullptr, 8) & O_APPEND) != 0;
}

} // namespace

bool isDocument(const QString& path, const QString& home) {
    if (home.isEmpty() || !path.startsWith(home + u'/') || path.mid(home.size()).contains("/."_L1))
        return false;
    static const QStringList programsOwn{
        u"application/vnd.sqlite3"_s,       u"application/x-sqlite3"_s,         u"text/x-log"_s,
        u"application/x-sharedlib"_s,       u"application/x-executable"_s,      u"application/java-archive"_s,
        u"application/x-java-archive"_s,    u"application/x-python-bytecode"_s, u"application/x-trash"_s,
        u"application/x-partial-download"_s};
    const QMimeType kind = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    return kind.isValid() && !kind.isDefault() && !kind.name().startsWith("font/"_L1) &&
           std::ranges::none_of(programsOwn, [&](const QString& name) { return kind.inherits(name); });
}

QStringList held(qint64 pid, const QString& home, const QString& proc) {
    const QString folder = u"%1/%2/"_s.arg(proc).arg(pid);
    QStringList files;
    for (const QString& number : QDir(folder + u"fd"_s).entryList(QDir::Files | QDir::System)) {
        const QString path = QFile::symLinkTarget(folder + u"fd/"_s + number);
        if (isDocument(path, home) && QFileInfo(path).isFile() && !isAppended(content(folder + u"fdinfo/"_s + number)))
            files.append(path);
    }
    return files;
}

QStringList startedWith(qint64 pid, const QString& proc) {
    const QString folder = u"%1/%2/"_s.arg(proc).arg(pid);
    const QDir working(QFile::symLinkTarget(folder + u"cwd"_s));
    QStringList files;
    for (const QByteArray& argument : content(folder + u"cmdline"_s).split('\0').mid(1)) {
        const QString word = QFile::decodeName(argument);
        const QString path = word.startsWith("file:"_L1) ? QUrl(word).toLocalFile() : word;
        if (!path.isEmpty() && !path.startsWith(u'-') && QFileInfo(working.absoluteFilePath(path)).isFile())
            files.append(QDir::cleanPath(working.absoluteFilePath(path)));
    }
    return files;
}

} // namespace fendrel::openFiles
