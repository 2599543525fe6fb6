#include "Platform/Linux/Applications/KeyFile.h"

#include <QFile>

namespace fendrel {

namespace {

constexpr qint64 sizeLimit = 4 << 20; // nothing honest is near it

} // namespace

KeyFile parseKeyFile(QByteArrayView content, const std::optional<QStringList>& locales) {
    KeyFile file;
    QHash<QString, QString>* group = nullptr;
    const QString text = QString::fromUtf8(content);
    for (const QStringView line : text.tokenize(u'\n')) {
        const QStringView trimmed = line.trimmed();
        if (trimmed.startsWith(u'#'))
            continue;
        if (trimmed.startsWith(u'[') && trimmed.endsWith(u']')) {
            const QString name = trimmed.sliced(1, trimmed.size() - 2).toString();
            group = file.contains(name) ? nullptr : &file[name];
            continue;
        }
        const auto equals = trimmed.indexOf(u'=');
        if (group == nullptr || equals <= 0)
            continue;
        const QStringView name = trimmed.first(equals).trimmed();
        const auto bracket = locales && name.endsWith(u']') ? name.indexOf(u'[') : -1;
        if (bracket >= 0 && !locales->contains(name.sliced(bracket + 1).chopped(1)))
            continue;
        const QString key = name.toString();
        if (!group->contains(key))
            group->insert(key, trimmed.sliced(equals + 1).trimmed().toString());
    }
    return file;
}

KeyFile readKeyFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? parseKeyFile(file.read(sizeLimit)) : KeyFile();
}

} // namespace fendrel
