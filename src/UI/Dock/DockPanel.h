#pragma once

#include "Ports/Displays.h"
#include "UI/BorrowedKeyboard.h"
#include "UI/Dock/DockController.h"
#include "UI/PacedMotion.h"
#include "UI/PopupWindow.h"

#include <QPointer>
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
    Q_PROPERTY(QRectF swelling READ swelling WRITE setSwelling NOTIFY swellingChanged)
    Q_PROPERTY(QRectF surface READ surface WRITE setSurface NOTIFY surfaceChanged)
    Q_PROPERTY(Qt::Edge edge READ edge NOTIFY edgeChanged)
    Q_PROPERTY(bool isShown READ isShown NOTIFY visibilityWanted)
    Q_PROPERTY(bool isCovered READ isCovered NOTIFY visibilityWanted)
    Q_PROPERTY(bool isTransparent READ isTransparent NOTIFY transparencyChanged)
    Q_PROPERTY(bool isPointerInside READ isPointerInside WRITE setPointerInside NOTIFY pointerChanged)
    Q_PROPERTY(bool isHeld READ isHeld WRITE setHeld NOTIFY heldChanged)
    Q_PROPERTY(bool hasKeyboard READ hasKeyboard NOTIFY keyboardChanged)

public:
    DockPanel(QQmlEngine& engine, AppController& controller, DockController& dock, FocusController& focus,
              VerdictController& verdict);
    ~DockPanel() override;

    /// Takes over a changed edge too. To another edge or display it slides: out of the old place, into the new one.
    void place(const Display& display);
    bool isCovered() const { return m_display.isFullScreen; }
    const QRect& touchable() const { return m_touchable; } ///< where it takes input, in device pixels
    QRect restingPlace() const;                            ///< of the bar, on the desktop; also while it is hidden

    QRectF bar() const { return m_bar; } ///< where the bar rests, in the window
    void setBar(const QRectF& bar);
    /// Where icons stand out of the bar under the pointer, in the window; empty while they do not.
    QRectF swelling() const { return m_swelling; }
    void setSwelling(const QRectF& area);
    QRectF surface() const { return m_surface; } ///< where the bar is drawn now, in the window
    void setSurface(const QRectF& area);
    Qt::Edge edge() const { return m_edge; }
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

    /// Leads the keyboard here while something is carried, so that Escape takes it back.
    Q_INVOKABLE void borrowKeyboard() { m_keyboard.take(); }

    /// Opens a menu beside the bar, at one of its items. It closes when it could not stay as it is: when the dock
    /// moves, when a compositor comes or goes, and when the keyboard goes elsewhere.
    Q_INVOKABLE void openMenu(fendrel::PopupWindow* menu, const QRectF& item, double gap);
    /// Opens what is only for the pointer in the same way. `input`: where that window takes the pointer.
    Q_INVOKABLE void openBeside(fendrel::BesideWindow* window, const QRectF& item, double gap, const QRectF& input);
    /// Whether a point of this window is on another display's bar, or `near` pixels from it.
    Q_INVOKABLE bool isOverOther(const QPointF& point, int near) const;
    Q_INVOKABLE bool isButtonDown() const; ///< of the pointer, wherever it is
    Q_INVOKABLE void menuClosed() { m_keyboard.resume(); }
    Q_INVOKABLE QPointF pointer() const; ///< where it is, in the window

Q_SIGNALS:
    void barChanged();
    void swellingChanged();
    void surfaceChanged();
    void edgeChanged();
    void visibilityWanted();
    void transparencyChanged();
    void pointerChanged();
    void heldChanged();
    void touchableChanged();
    void keyboardTaken();
    void leaves(); ///< for another place: what is being done with it here is over
    void keyboardChanged();

protected:
    bool event(QEvent* event) override;

private:
    bool canSlideAway() const;
    void dismissMenu();
    void arrive();
    QRectF beside(const QRectF& item) const;
    QRect toEdge(QRect rect) const;
    QRect hiddenStrip() const;
    void updateRegions();
    QRect inputArea() const;
    void updateInput(const QRect& input);
    void updateReserved();
    void updateMask();
    void updateBlur();

    AppController& m_controller;
    DockController& m_dock;
    Display m_display;
    Display m_destination; ///< the same, but on the way
    Qt::Edge m_edge;
    std::optional<Handle> m_departure; ///< here while it slides out of a place that it leaves
    QRect m_frame; ///< where the window is meant to be: what the window manager says of it comes late
    QRectF m_bar;
    QRectF m_swelling;
    QRectF m_surface;
    QRect m_touchable;
    // What the window system was told last. It is told again only when this differs: window managers lay out anew.
    std::optional<QRegion> m_input;
    std::optional<QRect> m_reserved;
    QRegion m_blur;
    QRegion m_mask;
    bool m_isPointerInside = false;
    bool m_isHeld = false;
    BorrowedKeyboard m_keyboard;
    QPointer<PopupWindow> m_menu; ///< the last one opened
    PacedMotion m_motion;
};

} // namespace fendrel
