#pragma once

#include "Modes/ModeRemoval.h"
#include "UI/Modes/DryRunModel.h"
#include "UI/Modes/ModeEditor.h"
#include "UI/Modes/ModesModel.h"

#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

/// The window of the modes: their list, the edited one, and what would happen with them.
class ModesController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(fendrel::ModesModel* list READ list CONSTANT)
    Q_PROPERTY(fendrel::ModeEditor* editor READ editor CONSTANT)
    Q_PROPERTY(fendrel::DryRunModel* dryRun READ dryRun CONSTANT)
    /// The built-in modes that are not in the list: id, name, symbol and tint.
    Q_PROPERTY(QVariantList templates READ templates NOTIFY changed)
    Q_PROPERTY(bool canDelete READ canDelete NOTIFY changed)
    Q_PROPERTY(QString removedName READ removedName NOTIFY removedChanged) ///< what can be taken back; empty: nothing
    Q_PROPERTY(bool isDark READ isDark NOTIFY looksChanged)

public:
    ModesController(AppController& controller, AppIcons& icons);

    ModesModel* list() { return &m_list; }
    ModeEditor* editor() { return &m_editor; }
    DryRunModel* dryRun() { return &m_dryRun; }
    QVariantList templates() const;
    bool canDelete() const;
    QString removedName() const;
    bool isDark() const;

    Q_INVOKABLE void openWindow(const QString& modeID); ///< at this mode
    Q_INVOKABLE void add(const QString& templateID);    ///< an unknown template stands for a mode without anything
    Q_INVOKABLE void duplicate(const QString& modeID);  ///< right behind it
    Q_INVOKABLE void remove(const QString& modeID);
    Q_INVOKABLE void undoRemove();
    Q_INVOKABLE void move(int from, int to); ///< the mode at `from` is at `to` afterwards

Q_SIGNALS:
    void changed();
    void removedChanged();
    void looksChanged();
    void added(); ///< the edited mode is a new one, which wants a name

private:
    QString freeName(const QString& name) const;
    void addBehind(Mode mode, qsizetype position);

    AppController& m_controller;
    ModesModel m_list;
    ModeEditor m_editor;
    DryRunModel m_dryRun;
    ModeRemoval m_removal;
};

} // namespace fendrel
