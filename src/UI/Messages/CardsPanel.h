#pragma once

#include "Ports/Displays.h"
#include "UI/BorrowedKeyboard.h"

#include <QQuickView>
#include <QRectF>
#include <QRegion>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class DockController;
class MessagesController;

/// The cards of held messages, beside the dock and on every virtual desktop: a window of which only the cards are seen
/// and take input. It never takes the keyboard by itself, and gives way to the gate, which asks one thing at a time.
/// Its content is CardsView.qml.
class CardsPanel : public QQuickView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isTransparent READ isTransparent NOTIFY transparencyChanged)
    Q_PROPERTY(bool hasKeyboard READ hasKeyboard NOTIFY keyboardChanged)
    Q_PROPERTY(QRectF alertArea READ alertArea WRITE setAlertArea NOTIFY areasChanged)
    Q_PROPERTY(QRectF listArea READ listArea WRITE setListArea NOTIFY areasChanged)

public:
    CardsPanel(QQmlEngine& engine, AppController& controller, DockController& dock, MessagesController& messages);

    void place(const Display& display, const QRect& bar); ///< `bar`: of the dock there, on the desktop

    bool isTransparent() const;
    bool hasCards() const;                           ///< that are seen
    QRectF alertArea() const { return m_alertArea; } ///< of the card, in the window; empty when there is none
    void setAlertArea(const QRectF& area);
    QRectF listArea() const { return m_listArea; }
    void setListArea(const QRectF& area);

    bool hasKeyboard() const { return m_keyboard.isHere(); }
    void takeKeyboard(); ///< to the alert, else to the list
    void takeKeyboardToList();
    Q_INVOKABLE void releaseKeyboard() { m_keyboard.release(); }
    Q_INVOKABLE void closed(); ///< to be called when the last card's way out is drawn: the window goes

Q_SIGNALS:
    void transparencyChanged();
    void keyboardChanged();
    void keyboardTaken(bool isForList);
    void areasChanged();

private:
    void update();
    void updateRegions();

    AppController& m_controller;
    DockController& m_dock;
    MessagesController& m_messages;
    BorrowedKeyboard m_keyboard;
    QRectF m_alertArea;
    QRectF m_listArea;
    QRegion m_input; ///< what the window system was told last
};

} // namespace fendrel
