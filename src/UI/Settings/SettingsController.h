#pragma once

#include "App/Preferences.h"
#include "UI/Modes/ModeEditor.h"

#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

#include <memory>

namespace fendrel {

class AppController;
class AppIcons;

/// The settings window: the pane it shows, and what its controls need beside the preferences themselves.
class SettingsController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(fendrel::Preferences* preferences READ preferences CONSTANT)
    Q_PROPERTY(QString pane READ pane WRITE setPane NOTIFY paneChanged)
    Q_PROPERTY(fendrel::ModeEditor* modeEditor READ modeEditor CONSTANT)
    Q_PROPERTY(bool isDark READ isDark NOTIFY looksChanged)
    Q_PROPERTY(QString modelProblem READ modelProblem NOTIFY stateChanged)
    Q_PROPERTY(QString messagesProblem READ messagesProblem NOTIFY stateChanged)
    Q_PROPERTY(bool replacesDock READ replacesDock NOTIFY dockChanged)
    Q_PROPERTY(QString systemDock READ systemDock NOTIFY dockChanged)
    Q_PROPERTY(QString version READ version CONSTANT)
    /// The built-in looks: name, label, background, isDark and isChosen.
    Q_PROPERTY(QVariantList presets READ presets NOTIFY looksChanged)

public:
    SettingsController(AppController& controller, AppIcons& icons);

    Preferences* preferences();
    const QString& pane() const { return m_pane; }
    void setPane(const QString& pane);
    ModeEditor* modeEditor();
    bool isDark() const;
    QString modelProblem() const;    ///< why no language model can be asked; empty while all is well
    QString messagesProblem() const; ///< why no messages are held; empty while all is well
    bool replacesDock() const;
    QString systemDock() const; ///< what there is to replace; empty when there is nothing
    QString version() const;
    QVariantList presets() const;

    Q_INVOKABLE void replaceDock(bool on); ///< asks first
    Q_INVOKABLE void choosePreset(const QString& name);

Q_SIGNALS:
    void paneChanged();
    void looksChanged();
    void dockChanged();
    void stateChanged();

private:
    AppController& m_controller;
    AppIcons& m_icons;
    QString m_pane{QStringLiteral("general")};
    std::unique_ptr<ModeEditor> m_modeEditor; ///< made when it is asked for first
};

} // namespace fendrel
