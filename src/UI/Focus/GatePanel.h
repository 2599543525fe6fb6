#pragma once

#include "Ports/Displays.h"

#include <QQuickView>
#include <QtQmlIntegration>

#include <functional>

namespace fendrel {

class AppController;
class AppIcons;
class DockController;
class FocusController;
class GateController;

/// The window that covers what the gate stops: the whole display that it is on. The dock there can still be used: there
/// the user can say that the judgement is wrong. Its content is GateView.qml. Made once and kept, so that it shows at
/// once.
class GatePanel : public QQuickView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY openChanged)
    Q_PROPERTY(bool isTransparent READ isTransparent NOTIFY transparencyChanged)
    Q_PROPERTY(bool isDark READ isDark NOTIFY lookChanged)
    Q_PROPERTY(QString icon READ icon NOTIFY openChanged)
    Q_PROPERTY(QRectF cardArea READ cardArea NOTIFY cardAreaChanged)

public:
    GatePanel(QQmlEngine& engine, AppController& controller, AppIcons& icons, DockController& dock,
              FocusController& focus, GateController& gate);

    /// Where the dock of a display takes input, in device pixels.
    std::function<QRect(const QString& displayID)> dockArea = [](const QString&) { return QRect(); };

    bool isOpen() const;
    bool isTransparent() const;
    bool isDark() const;
    QString icon() const;
    const QRectF& cardArea() const { return m_cardArea; } ///< what the dock leaves, in the window

    /// To be called when the panel's way out is drawn: the window goes.
    Q_INVOKABLE void closed();

    void leaveOutDock(); ///< to be called when the dock's place changes

Q_SIGNALS:
    void openChanged();
    void transparencyChanged();
    void lookChanged();
    void attentionAsked();
    void cardAreaChanged();

protected:
    void moveEvent(QMoveEvent* event) override;

private:
    void gateChanged();
    void comeForward();
    Display display() const;

    AppController& m_controller;
    AppIcons& m_icons;
    Display m_display; ///< the one that is covered
    QRectF m_cardArea;
    QRect m_cover;       ///< where the window is to be
    int m_movesLeft = 0; ///< how often it still goes back there
};

} // namespace fendrel
