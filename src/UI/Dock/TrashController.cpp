#include "UI/Dock/TrashController.h"

#include "App/AppController.h"

#include <QFileInfo>
#include <QPointer>

namespace fendrel {

TrashController::TrashController(AppController& controller) : m_controller(controller) {
    connect(&controller.replacement(), &DockReplacement::changed, this, &TrashController::changed);
    controller.platform().trash->onChanged = [this] { Q_EMIT changed(); };
}

TrashController::~TrashController() {
    m_controller.platform().trash->onChanged = [] {};
}

bool TrashController::isShown() const {
    return m_controller.replacement().isOn();
}

bool TrashController::isEmpty() const {
    return m_controller.platform().trash->isEmpty();
}

void TrashController::open() {
    m_controller.platform().trash->open();
}

void TrashController::askToEmpty() {
    const auto failed = [self = QPointer(this)](bool isDone) {
        if (self && !isDone)
            self->m_controller.onAlert({.message = tr("The Trash couldn't be emptied"),
                                        .informativeText = tr("Some of what is in it can't be deleted."),
                                        .buttons = {tr("OK")}});
    };
    m_controller.onAlert({.message = tr("Empty the Trash?"),
                          .informativeText = tr("What is in it is deleted for good. You can't undo this."),
                          .buttons = {tr("Empty Trash"), tr("Cancel")},
                          .isGrave = true,
                          .answered = [self = QPointer(this), failed](int button) {
                              if (self && button == 0)
                                  self->m_controller.platform().trash->empty(failed);
                          }});
}

void TrashController::add(const QList<QUrl>& files) {
    QStringList paths;
    for (const QUrl& file : files) {
        if (file.isLocalFile())
            paths.append(file.toLocalFile());
    }
    if (paths.isEmpty())
        return;
    m_controller.platform().trash->add(paths, [self = QPointer(this)](const QStringList& failed) {
        if (!self || failed.isEmpty())
            return;
        QStringList names;
        for (const QString& path : failed)
            names.append(QFileInfo(path).fileName());
        const QString message = names.size() == 1 ? tr("“%1” couldn't be moved to the Trash").arg(names.first())
                                                  : tr("%1 items couldn't be moved to the Trash").arg(names.size());
        self->m_controller.onAlert({.message = message,
                                    .informativeText = names.size() == 1 ? QString() : names.join(u'\n'),
                                    .buttons = {tr("OK")}});
    });
}

} // namespace fendrel
