#pragma once

#include "App/DockAppearance.h"
#include "App/PreferenceTypes.h"
#include "UI/Dock/DockAppsModel.h"
#include "UI/Dock/ModesModel.h"

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
    Q_PROPERTY(bool isGateOpen READ isGateOpen NOTIFY gateChanged)

public:
    DockController(AppController& controller, AppIcons& icons, MessagesController& messages);

    ModesModel* modes() { return &m_modes; }
    DockAppsModel* apps() { return &m_apps; }
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
    bool isGateOpen() const;

    Q_INVOKABLE void requestMode(const QString& modeID);
    Q_INVOKABLE void showHeld(const QString& modeID, bool isByKeyboard); ///< what is held for the mode
    Q_INVOKABLE void openApp(const QString& bundleID);
    Q_INVOKABLE void hideApp(const QString& bundleID);
    Q_INVOKABLE void showAllWindows(const QString& bundleID);
    Q_INVOKABLE void quitApp(const QString& bundleID);
    Q_INVOKABLE void revealApp(const QString& bundleID);
    Q_INVOKABLE void setInMode(const QString& bundleID, bool isInMode);
    Q_INVOKABLE void openSettings(const QString& pane);
    Q_INVOKABLE void quit();

Q_SIGNALS:
    void modeChanged();
    void lookChanged();
    void gateChanged();

private:
    const DockAppearance& look() const;

    AppController& m_controller;
    MessagesController& m_messages;
    ModesModel m_modes;
    DockAppsModel m_apps;
};

} // namespace fendrel
