#include "UI/Dock/DockPanel.h"

#include "App/AppController.h"
#include "Base/GuardedEdge.h"
#include "UI/Focus/FocusController.h"
#include "UI/Focus/VerdictController.h"
#include "UI/ScreenSpace.h"

#include <QGuiApplication>
#include <QPainterPath>
#include <QQuickItem>
#include <QtMath>

#include <algorithm>
#include <chrono>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Room beside the bar for the labels that appear over its items.
constexpr int roomAbove = 64;
constexpr int roomBeside = 300;

constexpr auto slideOut = std::chrono::milliseconds(320); // as long as DockView takes

} // namespace

DockPanel::DockPanel(QQmlEngine& engine, AppController& controller, DockController& dock, FocusController& focus,
                     VerdictController& verdict)
    : QQuickView(&engine, nullptr),
      m_controller(controller),
      m_dock(dock),
      m_edge(dock.edge()),
      m_keyboard(*this, controller.titles()),
      m_motion(*controller.platform().clock, [this](QHoverEvent& event) { QQuickView::event(&event); }) {
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::WindowStaysOnTopHint);
    setColor(Qt::transparent);
    setTitle(tr("Fendrel dock"));
    setResizeMode(SizeRootObjectToView);
    connect(&controller, &AppController::dockVisibilityChanged, this, [this] {
        updateRegions();
        Q_EMIT visibilityWanted();
    });
    connect(&controller.preferences(), &Preferences::changed, this, &DockPanel::updateRegions);
    // It takes the menu's keyboard along, whichever of them had it.
    connect(&m_keyboard, &BorrowedKeyboard::changed, this, [this] {
        dismissMenu();
        Q_EMIT keyboardChanged();
    });
    setInitialProperties({{u"panel"_s, QVariant::fromValue(this)},
                          {u"dock"_s, QVariant::fromValue(&dock)},
                          {u"focusState"_s, QVariant::fromValue(&focus)},
                          {u"verdict"_s, QVariant::fromValue(&verdict)}});
    controller.platform().panels->prepare(winId(), Panels::Kind::dock);
}

DockPanel::~DockPanel() {
    m_dock.apps()->letGo(); // a display can go while something is carried on it
    m_dock.widgets()->letGo();
}

void DockPanel::place(const Display& display) {
    m_destination = display;
    const bool isElsewhere = display.id != m_display.id || m_dock.edge() != m_edge;
    if (isElsewhere || display.frame != m_display.frame)
        Q_EMIT leaves();
    if (m_departure)
        return;
    if (!isElsewhere || !canSlideAway()) {
        arrive();
        return;
    }
    m_keyboard.release();
    dismissMenu();
    m_departure = m_controller.platform().clock->after(slideOut, [this] { arrive(); });
    updateInput(inputArea());
    updateMask();
    Q_EMIT visibilityWanted();
}

bool DockPanel::canSlideAway() const {
    const auto displays = m_controller.platform().displays->all();
    const bool isStillThere = std::ranges::find(displays, m_display.id, &Display::id) != displays.end();
    return isVisible() && isStillThere && isShown() && !m_controller.platform().look->reducesMotion();
}

void DockPanel::arrive() {
    m_display = m_destination;
    // Where the system's dock is still there, ours stands beside it and beside other panels.
    const bool hugsEdge = m_controller.replacement().isOn();
    QRect window = ScreenSpace::toLogical(hugsEdge ? m_display.frame : m_display.workArea);
    const int thickness = m_dock.iconSize() + 40 + qCeil(m_dock.iconSize() * (m_dock.magnification() - 1));
    if (m_dock.edge() == Qt::BottomEdge)
        window.setTop(window.bottom() + 1 - thickness - roomAbove);
    else if (m_dock.edge() == Qt::LeftEdge)
        window.setWidth(thickness + roomBeside);
    else
        window.setLeft(window.right() + 1 - thickness - roomBeside);
    if (window != m_frame)
        dismissMenu();
    m_frame = window;
    setGeometry(window);
    m_input.reset(); // what was said holds for the displays as they were
    m_reserved.reset();
    // The server takes its time to tell of the new size. Until then a bar for the old one would be in wrong places.
    if (rootObject() != nullptr)
        rootObject()->setSize(window.size());
    if (std::exchange(m_edge, m_dock.edge()) != m_dock.edge())
        Q_EMIT edgeChanged();
    m_departure.reset();
    if (source().isEmpty()) {
        // The window manager has its work with the window while the view is loaded. Where nothing blends windows, it
        // would be seen empty.
        if (isTransparent())
            show();
        setSource(QUrl(u"qrc:/qml/Fendrel/Dock/DockView.qml"_s));
        show();
    }
    // What happened on the way was told of the old place.
    m_controller.dockPointerChanged(m_display.id, m_isPointerInside);
    m_controller.dockHoldChanged(m_display.id, m_isHeld);
    updateRegions();
    Q_EMIT visibilityWanted();
}

void DockPanel::setBar(const QRectF& bar) {
    if (bar == m_bar)
        return;
    m_bar = bar;
    updateRegions();
    Q_EMIT barChanged();
}

void DockPanel::setSwelling(const QRectF& area) {
    if (area == m_swelling)
        return;
    m_swelling = area;
    updateRegions();
    Q_EMIT swellingChanged();
}

void DockPanel::setSurface(const QRectF& area) {
    if (area == m_surface)
        return;
    m_surface = area;
    updateBlur();
    Q_EMIT surfaceChanged();
}

QRect DockPanel::restingPlace() const {
    return m_bar.toAlignedRect().translated(m_frame.topLeft());
}

bool DockPanel::isShown() const {
    return !m_departure && m_controller.isDockShown(m_display.id);
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

/// A rectangle of the window, stretched to the window's edge.
QRect DockPanel::toEdge(QRect rect) const {
    switch (m_edge) {
    case Qt::LeftEdge:
        rect.setLeft(0);
        break;
    case Qt::RightEdge:
        rect.setRight(m_frame.width() - 1);
        break;
    default:
        rect.setBottom(m_frame.height() - 1);
        break;
    }
    return rect;
}

/// What stays of a hidden dock, to notice the pointer at the edge: at one of the screen's it may be kept off a little.
/// Where nothing blends windows, it is seen, and no longer than the bar.
QRect DockPanel::hiddenStrip() const {
    const double margin = GuardedEdge::margin + 1; // device pixels
    const int thickness = m_controller.replacement().isOn() ? qCeil(margin / devicePixelRatio()) : 2;
    QRect strip(QPoint(), m_frame.size());
    if (m_edge == Qt::LeftEdge)
        strip.setRight(thickness - 1);
    else if (m_edge == Qt::RightEdge)
        strip.setLeft(strip.right() + 1 - thickness);
    else
        strip.setTop(strip.bottom() + 1 - thickness);
    return isTransparent() ? strip : strip & toEdge(m_bar.toAlignedRect());
}

/// Tells the window system where the bar is: what other windows may not cover, where it takes input, and, where nothing
/// blends windows, what of the window is seen at all.
void DockPanel::updateRegions() {
    if (m_bar.isEmpty() || !isVisible())
        return;
    updateInput(inputArea());
    updateReserved();
    updateMask();
    updateBlur();
}

QRect DockPanel::inputArea() const {
    if (m_departure || isCovered())
        return {};
    const QRect bar = m_bar.toAlignedRect();
    if (!isShown())
        return hiddenStrip();
    // At the screen's edge nothing else is to be pressed, and a pointer thrown there stops. A dock that hides by itself
    // stays while the pointer is at the very edge that brought it.
    return m_controller.replacement().isOn() || m_controller.preferences().autoHide() ? toEdge(bar) : bar;
}

void DockPanel::updateInput(const QRect& input) {
    const double ratio = devicePixelRatio();
    const auto scaled = [ratio](const QRectF& area) {
        return QRectF(area.topLeft() * ratio, area.size() * ratio).toAlignedRect();
    };
    QRegion region = scaled(input);
    if (isShown() && !input.isEmpty())
        region += scaled(m_swelling);
    if (region != m_input) {
        m_input = region;
        m_controller.platform().panels->setInputRegion(winId(), region);
    }
    if (const QRect touchable = ScreenSpace::toDevice(input.translated(m_frame.topLeft())); touchable != m_touchable) {
        m_touchable = touchable;
        Q_EMIT touchableChanged();
    }
}

/// From the bar to the edge of the display, whatever other panels stand between.
void DockPanel::updateReserved() {
    QRect reserved;
    if (!m_controller.preferences().autoHide()) {
        const QRect area = toEdge(m_bar.toAlignedRect());
        const QRect strip = m_edge == Qt::BottomEdge ? QRect(0, area.top(), m_frame.width(), area.height())
                                                     : QRect(area.left(), 0, area.width(), m_frame.height());
        reserved = ScreenSpace::toDevice(strip.translated(m_frame.topLeft()));
        if (m_edge == Qt::LeftEdge)
            reserved.setLeft(m_display.frame.left());
        else if (m_edge == Qt::RightEdge)
            reserved.setRight(m_display.frame.right());
        else
            reserved.setBottom(m_display.frame.bottom());
    }
    if (reserved == m_reserved)
        return;
    m_reserved = reserved;
    m_controller.platform().panels->reserve(winId(), m_edge, m_display.frame, reserved);
}

void DockPanel::updateMask() {
    QRegion mask;
    if (!isTransparent()) {
        mask = QRect(-1, -1, 1, 1); // nothing: an empty one would not count as a mask
        if (isShown()) {
            QPainterPath outline;
            outline.addRoundedRect(m_bar, m_dock.cornerRadius(), m_dock.cornerRadius());
            mask += QRegion(outline.toFillPolygon().toPolygon());
        }
        // What is cut off takes no input either.
        if (m_controller.preferences().autoHide() && !inputArea().isEmpty())
            mask += hiddenStrip();
    }
    if (mask == m_mask)
        return;
    m_mask = mask;
    setMask(mask);
}

/// What lies behind the bar, as it is drawn, in a look that wants it blurred.
void DockPanel::updateBlur() {
    Panels& panels = *m_controller.platform().panels;
    QRegion region;
    if (m_controller.preferences().appearance().blur && panels.canBlur()) {
        const double ratio = devicePixelRatio();
        const QRect surface = QRectF(m_surface.topLeft() * ratio, m_surface.size() * ratio).toRect();
        const double radius = m_dock.cornerRadius() * ratio;
        QPainterPath outline;
        outline.addRoundedRect(surface, radius, radius);
        region = QRegion(outline.toFillPolygon().toPolygon()) & QRect(QPoint(), size() * ratio);
    }
    if (region == m_blur)
        return;
    m_blur = region;
    panels.setBlurRegion(winId(), region);
}

bool DockPanel::event(QEvent* event) {
    return m_motion.takes(*event) || QQuickView::event(event);
}

bool DockPanel::isButtonDown() const {
    return QGuiApplication::mouseButtons() != Qt::NoButton;
}

void DockPanel::takeKeyboard() {
    if (m_keyboard.take())
        Q_EMIT keyboardTaken();
}

/// The part of the bar that an item is in, on the desktop.
QRectF DockPanel::beside(const QRectF& item) const {
    const QRectF part = m_dock.edge() == Qt::BottomEdge ? QRectF(item.x(), m_bar.y(), item.width(), m_bar.height())
                                                        : QRectF(m_bar.x(), item.y(), m_bar.width(), item.height());
    return part.translated(m_frame.topLeft());
}

void DockPanel::openMenu(PopupWindow* menu, const QRectF& item, double gap) {
    m_controller.platform().panels->prepare(menu->winId(), Panels::Kind::menu);
    m_menu = menu;
    menu->openBeside(this, beside(item), m_dock.edge(), gap);
}

void DockPanel::dismissMenu() {
    if (m_menu)
        m_menu->dismiss();
}

QPointF DockPanel::pointer() const {
    return mapFromGlobal(QCursor::pos().toPointF());
}

void DockPanel::openBeside(BesideWindow* window, const QRectF& item, double gap, const QRectF& input) {
    Panels& panels = *m_controller.platform().panels;
    panels.prepare(window->winId(), Panels::Kind::menu);
    window->openBeside(this, beside(item), m_dock.edge(), gap);
    const double ratio = devicePixelRatio();
    panels.setInputRegion(window->winId(), QRectF(input.topLeft() * ratio, input.size() * ratio).toAlignedRect());
}

bool DockPanel::isOverOther(const QPointF& point, int near) const {
    const QPoint spot = point.toPoint() + m_frame.topLeft();
    const auto isUnder = [this, spot, near](const QWindow* window) {
        const auto* dock = qobject_cast<const DockPanel*>(window);
        return dock != nullptr && dock != this && dock->isShown() &&
               dock->restingPlace().adjusted(-near, -near, near, near).contains(spot);
    };
    return std::ranges::any_of(QGuiApplication::topLevelWindows(), isUnder);
}

void DockPanel::transparencyDidChange() {
    dismissMenu(); // its size is another then
    updateRegions();
    Q_EMIT transparencyChanged();
}

} // namespace fendrel
