#pragma once

#include "App/DockAppearance.h"
#include "App/Preferences.h"
#include "UI/Dock/AppActions.h"
#include "UI/Dock/DockAppsModel.h"
#include "UI/Dock/MinimizedModel.h"
#include "UI/Dock/NoticeController.h"
#include "UI/Dock/PreviewSource.h"
#include "UI/Dock/RestingPointer.h"
#include "UI/Dock/TrashController.h"
#include "UI/Dock/WindowsModel.h"
#include "UI/Modes/ModesModel.h"
#include "UI/Widgets/WidgetActions.h"
#include "UI/Widgets/WidgetCardsModel.h"

#include <QColor>
#include <QObject>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class MessagesController;

/// What the docks of all displays share: the modes, the applications and the look.
class DockController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(fendrel::ModesModel* modes READ modes CONSTANT)
    Q_PROPERTY(fendrel::DockAppsModel* apps READ apps CONSTANT)
    Q_PROPERTY(fendrel::AppActions* actions READ actions CONSTANT)
    Q_PROPERTY(fendrel::Preferences* preferences READ preferences CONSTANT)
    Q_PROPERTY(QString systemDock READ systemDock NOTIFY replacementChanged)
    Q_PROPERTY(bool replacesDock READ replacesDock NOTIFY replacementChanged)
    Q_PROPERTY(fendrel::MinimizedModel* minimized READ minimized CONSTANT)
    Q_PROPERTY(fendrel::TrashController* trash READ trash CONSTANT)
    Q_PROPERTY(fendrel::NoticeController* notices READ notices CONSTANT)
    Q_PROPERTY(fendrel::PreviewSource* previews READ previews CONSTANT)
    Q_PROPERTY(fendrel::RestingPointer* restingPointer READ restingPointer CONSTANT)
    Q_PROPERTY(fendrel::WindowsModel* windows READ windows CONSTANT)
    Q_PROPERTY(fendrel::WidgetCardsModel* widgets READ widgets CONSTANT)
    Q_PROPERTY(fendrel::WidgetActions* widgetActions READ widgetActions CONSTANT)
    Q_PROPERTY(QString modeID READ modeID NOTIFY modeChanged)
    Q_PROPERTY(QString modeName READ modeName NOTIFY modeChanged)
    Q_PROPERTY(QColor tint READ tint NOTIFY modeChanged)
    Q_PROPERTY(Qt::Edge edge READ edge NOTIFY lookChanged)
    Q_PROPERTY(int iconSize READ iconSize NOTIFY lookChanged)
    Q_PROPERTY(QColor background READ background NOTIFY lookChanged)
    Q_PROPERTY(bool isDark READ isDark NOTIFY lookChanged)
    Q_PROPERTY(double opacity READ opacity NOTIFY lookChanged)
    Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY lookChanged)
    Q_PROPERTY(double spacing READ spacing NOTIFY lookChanged)
    Q_PROPERTY(double magnification READ magnification NOTIFY lookChanged)
    Q_PROPERTY(double shadow READ shadow NOTIFY lookChanged)
    Q_PROPERTY(double border READ border NOTIFY lookChanged)
    /// The labels of hot keys that work, by position; empty where there is none.
    Q_PROPERTY(QStringList appHotKeys READ appHotKeys NOTIFY hotKeysChanged)
    Q_PROPERTY(bool isGateOpen READ isGateOpen NOTIFY gateChanged)

public:
    DockController(AppController& controller, AppIcons& icons, MessagesController& messages);

    ModesModel* modes() { return &m_modes; }
    DockAppsModel* apps() { return &m_apps; }
    AppActions* actions() { return &m_actions; }
    Preferences* preferences();
    QString systemDock() const; ///< what there is to replace; empty when there is nothing
    bool replacesDock() const;
    MinimizedModel* minimized() { return &m_minimized; }
    TrashController* trash() { return &m_trash; }
    NoticeController* notices() { return &m_notices; }
    PreviewSource* previews() { return &m_previews; }
    RestingPointer* restingPointer() { return &m_restingPointer; }
    WindowsModel* windows() { return &m_windows; } ///< of the application that the pointer rests on
    WidgetCardsModel* widgets() { return &m_widgets; }
    WidgetActions* widgetActions() { return &m_widgetActions; }
    QString modeID() const;
    QString modeName() const;
    QColor tint() const;
    Qt::Edge edge() const;
    int iconSize() const; ///< pixels
    QColor background() const { return look().background; }
    bool isDark() const { return look().isDark; }
    double opacity() const { return look().opacity; }
    double cornerRadius() const { return look().cornerRadius; }
    double spacing() const { return look().spacing; }
    double magnification() const; ///< factor under the pointer; 1 when the user wants none
    double shadow() const { return look().shadow; }
    double border() const { return look().border; }
    QStringList appHotKeys() const;
    bool isGateOpen() const;

    void openApp(int index); ///< as a click on the one at this position

    Q_INVOKABLE void requestMode(const QString& modeID);
    Q_INVOKABLE void showHeld(const QString& modeID, bool isByKeyboard); ///< what is held for the mode
    Q_INVOKABLE QString budgetUsed(const QString& modeID) const; ///< of today's; empty for a mode without an allowance
    Q_INVOKABLE void replaceDock(bool on);                       ///< asks first
    Q_INVOKABLE void openSettings(const QString& pane);
    Q_INVOKABLE void editMode(const QString& modeID);
    Q_INVOKABLE void quit();

Q_SIGNALS:
    void modeChanged();
    void replacementChanged();
    void lookChanged();
    void gateChanged();
    void hotKeysChanged();

private:
    const DockAppearance& look() const;

    AppController& m_controller;
    MessagesController& m_messages;
    ModesModel m_modes;
    DockAppsModel m_apps;
    AppActions m_actions;
    MinimizedModel m_minimized;
    TrashController m_trash;
    NoticeController m_notices;
    PreviewSource m_previews;
    RestingPointer m_restingPointer;
    WindowsModel m_windows;
    WidgetCardsModel m_widgets;
    WidgetActions m_widgetActions;
};

} // namespace fendrel
