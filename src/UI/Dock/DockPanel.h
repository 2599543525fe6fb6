#pragma once

#include "Ports/Displays.h"
#include "UI/BorrowedKeyboard.h"
#include "UI/Dock/DockController.h"
#include "UI/PopupWindow.h"

#include <QQuickView>
#include <QRectF>
#include <QRegion>
#include <QtQmlIntegration>

#include <optional>

namespace fendrel {

class AppController;

class FocusController;
class VerdictController;

/// The dock of one display: a window along the whole edge, of which only the bar is seen, takes input and keeps other
/// windows off. Its content is DockView.qml.
class DockPanel : public QQuickView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QRectF bar READ bar WRITE setBar NOTIFY barChanged)
    Q_PROPERTY(bool isShown READ isShown NOTIFY visibilityWanted)
    Q_PROPERTY(bool isTransparent READ isTransparent NOTIFY transparencyChanged)
    Q_PROPERTY(bool isPointerInside READ isPointerInside WRITE setPointerInside NOTIFY pointerChanged)
    Q_PROPERTY(bool isHeld READ isHeld WRITE setHeld NOTIFY heldChanged)
    Q_PROPERTY(bool hasKeyboard READ hasKeyboard NOTIFY keyboardChanged)

public:
    DockPanel(QQmlEngine& engine, AppController& controller, DockController& dock, FocusController& focus,
              VerdictController& verdict);

    void place(const Display& display);                    ///< also takes over a changed edge
    const QRect& touchable() const { return m_touchable; } ///< where it takes input, in device pixels
    QRect restingPlace() const;                            ///< of the bar, on the desktop; also while it is hidden

    QRectF bar() const { return m_bar; } ///< where the bar rests, in the window
    void setBar(const QRectF& bar);
    bool isShown() const;
    bool isTransparent() const;
    bool isPointerInside() const { return m_isPointerInside; }
    void setPointerInside(bool inside);
    bool isHeld() const { return m_isHeld; }
    void setHeld(bool held);
    void transparencyDidChange(); ///< a compositor came or went

    /// Leads the keyboard to the dock, without taking the front from the active window.
    void takeKeyboard();
    bool hasKeyboard() const { return m_keyboard.isHere(); }
    Q_INVOKABLE void releaseKeyboard() { m_keyboard.release(); }

    /// Opens a menu beside the bar, at one of its items.
    Q_INVOKABLE void openMenu(fendrel::PopupWindow* menu, const QRectF& item, double gap);
    Q_INVOKABLE void menuClosed() { m_keyboard.resume(); }

Q_SIGNALS:
    void barChanged();
    void visibilityWanted();
    void transparencyChanged();
    void pointerChanged();
    void heldChanged();
    void touchableChanged();
    void keyboardTaken();
    void keyboardChanged();

private:
    QRect toEdge(QRect rect) const;
    QRect hiddenStrip() const;
    void updateRegions();
    void updateInput(const QRect& input);
    void updateReserved();
    void updateMask();

    AppController& m_controller;
    DockController& m_dock;
    Display m_display;
    QRect m_frame; ///< where the window is meant to be: what the window manager says of it comes late
    QRectF m_bar;
    QRect m_touchable;
    // What the window system was told last. It is told again only when this differs: window managers lay out anew.
    std::optional<QRect> m_input;
    std::optional<QRect> m_reserved;
    QRegion m_mask;
    bool m_isPointerInside = false;
    bool m_isHeld = false;
    BorrowedKeyboard m_keyboard;
};

} // namespace fendrel
