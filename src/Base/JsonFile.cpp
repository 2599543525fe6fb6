#include "Base/JsonFile.h"

#include "Base/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace fendrel::JsonFile {

using namespace Qt::StringLiterals;

Result<QJsonObject, ReadError> read(const QString& path) {
    using Answer = Result<QJsonObject, ReadError>;
    QFile file(path);
    if (!file.exists())
        return Answer::failure(ReadError::missing);
    if (!file.open(QIODevice::ReadOnly))
        return Answer::failure(ReadError::unreadable);
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        return Answer::failure(ReadError::unreadable);
    return document.object();
}

bool write(const QString& path, const QByteArray& content) {
    const QString folder = QFileInfo(path).path();
    if (!QFileInfo::exists(folder) && QDir().mkpath(folder))
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                           file.write(content) == content.size() && file.commit();
    if (!isWritten)
        qCWarning(logFiles).noquote() << "Couldn't write" << path + u":"_s << file.errorString();
    return isWritten;
}

std::optional<QString> keepAside(const QString& path) {
    if (!QFileInfo::exists(path))
        return {};
    for (int number = 1; number < 1000; ++number) {
        const QString aside = u"%1.damaged-%2"_s.arg(path).arg(number);
        if (QFileInfo::exists(aside))
            continue;
        if (!QFile::rename(path, aside))
            break;
        qCWarning(logFiles).noquote() << path << "could not be read and is kept as" << aside;
        return aside;
    }
    qCWarning(logFiles).noquote() << path << "could not be read, and not be moved aside either";
    return {};
}

} // namespace fendrel::JsonFile
