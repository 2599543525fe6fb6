#include "UI/Settings/ContextsController.h"

#include "App/AppController.h"
#include "UI/Modes/ContextText.h"
#include "UI/MomentText.h"

#include <QPointer>

namespace fendrel {

using namespace Qt::StringLiterals;

ContextsController::ContextsController(AppController& controller) : m_controller(controller) {
    connect(&controller.context(), &ModeContext::changed, this, &ContextsController::changed);
    connect(&controller.engine(), &ModeEngine::changed, this, &ContextsController::changed);
}

QVariantList ContextsController::entries() const {
    const WallTime now = m_controller.platform().clock->now();
    const auto& snapshots = m_controller.context().snapshots();
    QVariantList list;
    for (const Mode& mode : m_controller.engine().modes()) {
        const auto found = snapshots.constFind(mode.id);
        if (found == snapshots.constEnd())
            continue;
        list.append(
            QVariantMap{{u"modeID"_s, mode.id},
                        {u"name"_s, mode.name},
                        {u"tint"_s, color(mode.tint)},
                        {u"when"_s, momentText(found->savedAt, now)},
                        {u"contents"_s, found->isEmpty() ? tr("nothing to open again") : contextContents(*found)},
                        {u"note"_s, found->note.value_or(QString())}});
    }
    return list;
}

void ContextsController::forget(const QString& modeID) {
    m_controller.context().forget(modeID);
}

void ContextsController::askToForgetAll() {
    m_controller.onAlert({.message = tr("Forget what was open in all modes?"),
                          .informativeText = tr("Nothing can be brought back then until you leave a mode again."),
                          .buttons = {tr("Forget All"), tr("Cancel")},
                          .isGrave = true,
                          .answered = [self = QPointer(this)](int button) {
                              if (self && button == 0)
                                  self->m_controller.context().forgetAll();
                          }});
}

} // namespace fendrel
