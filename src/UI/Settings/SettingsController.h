#pragma once

#include "App/Preferences.h"
#include "UI/Modes/ModesController.h"
#include "UI/Settings/AboutController.h"
#include "UI/Settings/AccountsController.h"
#include "UI/Settings/AnswersController.h"
#include "UI/Settings/ContextsController.h"
#include "UI/Settings/DataController.h"
#include "UI/Settings/FileAsking.h"
#include "UI/Settings/KeyboardController.h"
#include "UI/Settings/LookEditor.h"
#include "UI/Settings/WidgetsController.h"
#include "UI/Setup/PermissionsModel.h"

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
    /// The page of what was learned lies over the pane.
    Q_PROPERTY(bool isShowingAnswers MEMBER m_isShowingAnswers NOTIFY isShowingAnswersChanged)
    Q_PROPERTY(fendrel::ModesController* modes READ modes CONSTANT)
    Q_PROPERTY(fendrel::LookEditor* lookEditor READ lookEditor CONSTANT)
    Q_PROPERTY(fendrel::KeyboardController* keyboard READ keyboard CONSTANT)
    Q_PROPERTY(fendrel::PermissionsModel* permissions READ permissions CONSTANT)
    Q_PROPERTY(fendrel::AboutController* about READ about CONSTANT)
    Q_PROPERTY(fendrel::AnswersController* answers READ answers CONSTANT)
    Q_PROPERTY(fendrel::DataController* backup READ backup CONSTANT)
    Q_PROPERTY(fendrel::FileAsking* files READ files CONSTANT)
    Q_PROPERTY(fendrel::AccountsController* accounts READ accounts CONSTANT)
    Q_PROPERTY(fendrel::WidgetsController* widgets READ widgets CONSTANT)
    Q_PROPERTY(fendrel::ContextsController* contexts READ contexts CONSTANT)
    Q_PROPERTY(bool isDark READ isDark NOTIFY looksChanged)
    Q_PROPERTY(QString modelProblem READ modelProblem NOTIFY stateChanged)
    Q_PROPERTY(QString messagesProblem READ messagesProblem NOTIFY stateChanged)
    Q_PROPERTY(bool startsAtLogin READ startsAtLogin WRITE setStartsAtLogin NOTIFY stateChanged)
    Q_PROPERTY(bool replacesDock READ replacesDock NOTIFY dockChanged)
    Q_PROPERTY(QString dockHelp READ dockHelp NOTIFY dockChanged)
    Q_PROPERTY(QString version READ version CONSTANT)

public:
    SettingsController(AppController& controller, AppIcons& icons, Capabilities& capabilities);
    ~SettingsController() override;

    Preferences* preferences();
    const QString& pane() const { return m_pane; }
    void setPane(const QString& pane);
    ModesController* modes();
    LookEditor* lookEditor();
    KeyboardController* keyboard();
    PermissionsModel* permissions();
    AboutController* about();
    AnswersController* answers();
    DataController* backup();
    FileAsking* files() { return &m_files; }
    AccountsController* accounts();
    WidgetsController* widgets();
    ContextsController* contexts();
    bool isDark() const;
    QString modelProblem() const;    ///< why no language model can be asked; empty while all is well
    QString messagesProblem() const; ///< why no messages are held; empty while all is well
    bool startsAtLogin() const;
    void setStartsAtLogin(bool on);
    bool replacesDock() const;
    QString dockHelp() const; ///< what replacing it does
    QString version() const;

    Q_INVOKABLE void replaceDock(bool on); ///< asks first
    Q_INVOKABLE void showFirstRun();
    /// What the catalogue says of a setting, or of a pane.
    Q_INVOKABLE QString labelOf(const QString& setting) const;
    Q_INVOKABLE QString helpOf(const QString& setting) const;
    Q_INVOKABLE void askToReset(const QString& pane); ///< to the defaults of its settings

Q_SIGNALS:
    void paneChanged();
    void opened(const QString& setting); ///< from outside the window: one of the pane's settings, or the pane itself
    void isShowingAnswersChanged();
    void looksChanged();
    void dockChanged();
    void stateChanged();

private:
    AppController& m_controller;
    AppIcons& m_icons;
    Capabilities& m_capabilities;
    FileAsking m_files;
    QString m_pane{QStringLiteral("general")};
    bool m_isShowingAnswers{false};
    std::unique_ptr<ModesController> m_modes; ///< made when it is asked for first
    std::unique_ptr<AccountsController> m_accounts;
    std::unique_ptr<WidgetsController> m_widgets;
    std::unique_ptr<ContextsController> m_contexts;
    std::unique_ptr<LookEditor> m_lookEditor; ///< likewise
    std::unique_ptr<KeyboardController> m_keyboard;
    std::unique_ptr<PermissionsModel> m_permissions;
    std::unique_ptr<AboutController> m_about;
    std::unique_ptr<AnswersController> m_answers;
    std::unique_ptr<DataController> m_backup;
};

} // namespace fendrel
