#include "UI/ShownPath.h"

#include <QDir>
#include <QUrl>

namespace fendrel {

using namespace Qt::StringLiterals;

QString shownPath(const QString& path) {
    const QString home = QDir::homePath() + u'/';
    return path.startsWith(home) ? u"~/"_s + path.mid(home.size()) : path;
}

QString typedPath(const QString& typed) {
    const QString text = typed.trimmed();
    if (text.startsWith("file:"_L1))
        return QUrl(text).toLocalFile();
    if (text.startsWith("~/"_L1))
        return QDir::home().filePath(text.mid(2));
    return QDir::home().absoluteFilePath(text);
}

} // namespace fendrel
