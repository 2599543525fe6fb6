#include "UI/Dock/DockPanel.h"

#include "App/AppController.h"
#include "UI/Focus/FocusController.h"
#include "UI/Focus/VerdictController.h"
#include "UI/ScreenSpace.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPainterPath>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Room beside the bar for the labels that appear over its items.
constexpr int roomAbove = 64;
constexpr int roomBeside = 300;

} // namespace

DockPanel::DockPanel(QQmlEngine& engine, AppController& controller, DockController& dock, FocusController& focus,
                     VerdictController& verdict)
    : QQuickView(&engine, nullptr), m_controller(controller), m_dock(dock) {
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::WindowStaysOnTopHint);
    setColor(Qt::transparent);
    setTitle(tr("Fendrel dock"));
    setResizeMode(SizeRootObjectToView);
    connect(&controller, &AppController::dockVisibilityChanged, this, [this] {
        updateRegions();
        Q_EMIT visibilityWanted();
    });
    connect(&controller.preferences(), &Preferences::changed, this, &DockPanel::updateRegions);
    setInitialProperties({{u"panel"_s, QVariant::fromValue(this)},
                          {u"dock"_s, QVariant::fromValue(&dock)},
                          {u"focusState"_s, QVariant::fromValue(&focus)},
                          {u"verdict"_s, QVariant::fromValue(&verdict)}});
    controller.platform().panels->prepare(winId(), Panels::Kind::dock);
}

Qt::Edge DockPanel::edge() const {
    switch (m_dock.edge()) {
    case DockController::Edge::Left:
        return Qt::LeftEdge;
    case DockController::Edge::Right:
        return Qt::RightEdge;
    case DockController::Edge::Bottom:
        break;
    }
    return Qt::BottomEdge;
}

void DockPanel::place(const Display& display) {
    m_display = display;
    const QRect screen = ScreenSpace::toLogical(display.frame);
    const int thickness = m_dock.iconSize() + 40;
    QRect window = screen;
    if (edge() == Qt::BottomEdge)
        window.setTop(screen.bottom() + 1 - thickness - roomAbove);
    else if (edge() == Qt::LeftEdge)
        window.setWidth(thickness + roomBeside);
    else
        window.setLeft(screen.right() + 1 - thickness - roomBeside);
    m_frame = window;
    setGeometry(window);
    if (source().isEmpty()) {
        setSource(QUrl(u"qrc:/qml/Fendrel/Dock/DockView.qml"_s));
        show();
    }
    updateRegions();
}

void DockPanel::setBar(const QRectF& bar) {
    if (bar == m_bar)
        return;
    m_bar = bar;
    updateRegions();
    Q_EMIT barChanged();
}

bool DockPanel::isShown() const {
    return m_controller.isDockShown(m_display.id);
}

bool DockPanel::isTransparent() const {
    return m_controller.platform().panels->hasTransparency();
}

void DockPanel::setPointerInside(bool inside) {
    if (inside == m_isPointerInside)
        return;
    m_isPointerInside = inside;
    m_controller.dockPointerChanged(m_display.id, inside);
    Q_EMIT pointerChanged();
}

void DockPanel::setHeld(bool held) {
    if (held == m_isHeld)
        return;
    m_isHeld = held;
    m_controller.dockHoldChanged(m_display.id, held);
    Q_EMIT heldChanged();
}

/// A rectangle of the window, stretched to the edge of the display.
QRect DockPanel::toEdge(QRect rect) const {
    switch (edge()) {
    case Qt::LeftEdge:
        rect.setLeft(0);
        break;
    case Qt::RightEdge:
        rect.setRight(width() - 1);
        break;
    default:
        rect.setBottom(height() - 1);
        break;
    }
    return rect;
}

/// What stays of a hidden dock, to notice the pointer at the edge.
QRect DockPanel::hiddenStrip() const {
    constexpr int thickness = 2;
    switch (edge()) {
    case Qt::LeftEdge:
        return {0, 0, thickness, height()};
    case Qt::RightEdge:
        return {width() - thickness, 0, thickness, height()};
    default:
        return {0, height() - thickness, width(), thickness};
    }
}

/// Tells the window system where the bar is: what other windows may not cover, where it takes input, and, where nothing
/// blends windows, what of the window is seen at all.
void DockPanel::updateRegions() {
    if (m_bar.isEmpty() || !isVisible())
        return;
    Panels& panels = *m_controller.platform().panels;
    const bool autoHides = m_controller.preferences().autoHide();
    const QRect bar = m_bar.toAlignedRect();

    // A dock that hides by itself stays while the pointer is at the very edge that brought it.
    const QRect input = !isShown() ? hiddenStrip() : autoHides ? toEdge(bar) : bar;
    const double ratio = devicePixelRatio();
    panels.setInputRegion(winId(),
                          QRectF(QPointF(input.topLeft()) * ratio, QSizeF(input.size()) * ratio).toAlignedRect());

    QRect reserved;
    if (!autoHides) {
        const QRect area = toEdge(bar);
        const QRect strip = edge() == Qt::BottomEdge ? QRect(0, area.top(), width(), area.height())
                                                     : QRect(area.left(), 0, area.width(), height());
        reserved = ScreenSpace::toDevice(strip.translated(m_frame.topLeft()));
    }
    panels.reserve(winId(), edge(), m_display.frame, reserved);

    QRegion seen;
    if (!isTransparent()) {
        QPainterPath outline;
        outline.addRoundedRect(m_bar, m_dock.cornerRadius(), m_dock.cornerRadius());
        seen = QRegion(outline.toFillPolygon().toPolygon());
    }
    setMask(seen);

    if (const QRect touchable = ScreenSpace::toDevice(input.translated(m_frame.topLeft())); touchable != m_touchable) {
        m_touchable = touchable;
        Q_EMIT touchableChanged();
    }
}

void DockPanel::takeKeyboard() {
    if (!setKeyboardGrabEnabled(true))
        return;
    setHeld(true);
    // The window is never the active one, so the toolkit has to be told that keys come here.
    QFocusEvent event(QEvent::FocusIn, Qt::ShortcutFocusReason);
    QCoreApplication::sendEvent(this, &event);
    Q_EMIT keyboardTaken();
}

void DockPanel::releaseKeyboard() {
    setKeyboardGrabEnabled(false);
    QFocusEvent event(QEvent::FocusOut, Qt::ShortcutFocusReason);
    QCoreApplication::sendEvent(this, &event);
    setHeld(false);
}

void DockPanel::openMenu(PopupWindow* menu, const QRectF& item, double gap) {
    const QRectF anchor = edge() == Qt::BottomEdge ? QRectF(item.x(), m_bar.y(), item.width(), m_bar.height())
                                                   : QRectF(m_bar.x(), item.y(), m_bar.width(), item.height());
    m_controller.platform().panels->prepare(menu->winId(), Panels::Kind::menu);
    menu->openBeside(this, anchor.translated(m_frame.topLeft()), edge(), gap);
}

void DockPanel::transparencyDidChange() {
    updateRegions();
    Q_EMIT transparencyChanged();
}

} // namespace fendrel
