#include "UI/Dock/DockPanel.h"

#include "App/AppController.h"
#include "UI/Focus/FocusController.h"
#include "UI/Focus/VerdictController.h"
#include "UI/ScreenSpace.h"

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
    : QQuickView(&engine, nullptr), m_controller(controller), m_dock(dock), m_keyboard(*this, controller.titles()) {
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::WindowStaysOnTopHint);
    setColor(Qt::transparent);
    setTitle(tr("Fendrel dock"));
    setResizeMode(SizeRootObjectToView);
    connect(&controller, &AppController::dockVisibilityChanged, this, [this] {
        updateRegions();
        Q_EMIT visibilityWanted();
    });
    connect(&controller.preferences(), &Preferences::changed, this, &DockPanel::updateRegions);
    connect(&m_keyboard, &BorrowedKeyboard::changed, this, &DockPanel::keyboardChanged);
    setInitialProperties({{u"panel"_s, QVariant::fromValue(this)},
                          {u"dock"_s, QVariant::fromValue(&dock)},
                          {u"focusState"_s, QVariant::fromValue(&focus)},
                          {u"verdict"_s, QVariant::fromValue(&verdict)}});
    controller.platform().panels->prepare(winId(), Panels::Kind::dock);
}

void DockPanel::place(const Display& display) {
    m_display = display;
    const QRect screen = ScreenSpace::toLogical(display.frame);
    const int thickness = m_dock.iconSize() + 40;
    QRect window = screen;
    if (m_dock.edge() == Qt::BottomEdge)
        window.setTop(screen.bottom() + 1 - thickness - roomAbove);
    else if (m_dock.edge() == Qt::LeftEdge)
        window.setWidth(thickness + roomBeside);
    else
        window.setLeft(screen.right() + 1 - thickness - roomBeside);
    m_frame = window;
    setGeometry(window);
    m_input.reset(); // what was said holds for the displays as they were
    m_reserved.reset();
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

QRect DockPanel::restingPlace() const {
    return m_bar.toAlignedRect().translated(m_frame.topLeft());
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
    switch (m_dock.edge()) {
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
    switch (m_dock.edge()) {
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
    // A dock that hides by itself stays while the pointer is at the very edge that brought it.
    const QRect bar = m_bar.toAlignedRect();
    updateInput(!isShown() ? hiddenStrip() : m_controller.preferences().autoHide() ? toEdge(bar) : bar);
    updateReserved();
    updateMask();
}

void DockPanel::updateInput(const QRect& input) {
    const double ratio = devicePixelRatio();
    const QRect region = QRectF(QPointF(input.topLeft()) * ratio, QSizeF(input.size()) * ratio).toAlignedRect();
    if (region != m_input) {
        m_input = region;
        m_controller.platform().panels->setInputRegion(winId(), region);
    }
    if (const QRect touchable = ScreenSpace::toDevice(input.translated(m_frame.topLeft())); touchable != m_touchable) {
        m_touchable = touchable;
        Q_EMIT touchableChanged();
    }
}

void DockPanel::updateReserved() {
    QRect reserved;
    if (!m_controller.preferences().autoHide()) {
        const QRect area = toEdge(m_bar.toAlignedRect());
        const QRect strip = m_dock.edge() == Qt::BottomEdge ? QRect(0, area.top(), width(), area.height())
                                                            : QRect(area.left(), 0, area.width(), height());
        reserved = ScreenSpace::toDevice(strip.translated(m_frame.topLeft()));
    }
    if (reserved == m_reserved)
        return;
    m_reserved = reserved;
    m_controller.platform().panels->reserve(winId(), m_dock.edge(), m_display.frame, reserved);
}

void DockPanel::updateMask() {
    QRegion mask;
    if (!isTransparent()) {
        QPainterPath outline;
        outline.addRoundedRect(m_bar, m_dock.cornerRadius(), m_dock.cornerRadius());
        mask = QRegion(outline.toFillPolygon().toPolygon());
    }
    if (mask == m_mask)
        return;
    m_mask = mask;
    setMask(mask);
}

void DockPanel::takeKeyboard() {
    if (m_keyboard.take())
        Q_EMIT keyboardTaken();
}

void DockPanel::openMenu(PopupWindow* menu, const QRectF& item, double gap) {
    const QRectF anchor = m_dock.edge() == Qt::BottomEdge ? QRectF(item.x(), m_bar.y(), item.width(), m_bar.height())
                                                          : QRectF(m_bar.x(), item.y(), m_bar.width(), item.height());
    m_controller.platform().panels->prepare(menu->winId(), Panels::Kind::menu);
    menu->openBeside(this, anchor.translated(m_frame.topLeft()), m_dock.edge(), gap);
}

void DockPanel::transparencyDidChange() {
    updateRegions();
    Q_EMIT transparencyChanged();
}

} // namespace fendrel
