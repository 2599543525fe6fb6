#include "Widgets/Usage/UsageRoots.h"

#include <QDir>

namespace fendrel {

using namespace Qt::StringLiterals;

QStringList usageRoots(const QString& configured) {
    const QString home = QDir::homePath();
    QStringList roots;
    for (const QString& folder : configured.split(u',')) {
        const QString name = folder.trimmed();
        if (!name.isEmpty())
            roots.append((name == u"~" || name.startsWith(u"~/") ? home + name.mid(1) : name) + u"/projects"_s);
    }
    return roots.isEmpty() ? QStringList{home + u"/.claude/projects"_s, home + u"/.config/claude/projects"_s} : roots;
}

} // namespace fendrel
