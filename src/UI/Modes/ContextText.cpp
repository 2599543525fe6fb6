#include "UI/Modes/ContextText.h"

#include <QCoreApplication>

namespace fendrel {

QString contextContents(const ModeSnapshot& snapshot) {
    const auto counted = [](const char* text, qsizetype count) {
        return QCoreApplication::translate("Context", text, nullptr, static_cast<int>(count));
    };
    QStringList parts;
    if (!snapshot.apps.isEmpty())
        parts.append(counted(QT_TRANSLATE_N_NOOP("Context", "%n application(s)"), snapshot.apps.size()));
    if (!snapshot.pages.isEmpty())
        parts.append(counted(QT_TRANSLATE_N_NOOP("Context", "%n page(s)"), snapshot.pages.size()));
    if (!snapshot.documents.isEmpty())
        parts.append(counted(QT_TRANSLATE_N_NOOP("Context", "%n document(s)"), snapshot.documents.size()));
    return parts.join(QStringLiteral(", "));
}

} // namespace fendrel
