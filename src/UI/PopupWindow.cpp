#include "UI/PopupWindow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

namespace fendrel {

PopupWindow::PopupWindow(QWindow* parent) : QQuickWindow(parent) {
    setFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setColor(Qt::transparent);
}

void PopupWindow::openBeside(QWindow* window, const QRectF& anchor, Qt::Edge edge, double gap) {
    constexpr int inset = 8;
    const QRect screen = window->screen()->geometry().adjusted(inset, inset, -inset, -inset);
    const double room = edge == Qt::BottomEdge ? anchor.top() - gap - screen.top() : screen.height();
    setHeight(std::min(height(), static_cast<int>(room)));
    QPointF corner(anchor.center().x() - width() / 2.0, anchor.top() - gap - height());
    if (edge == Qt::LeftEdge)
        corner = {anchor.right() + gap, anchor.center().y() - height() / 2.0};
    else if (edge == Qt::RightEdge)
        corner = {anchor.left() - gap - width(), anchor.center().y() - height() / 2.0};
    const int x = std::clamp(qRound(corner.x()), screen.left(), std::max(screen.left(), screen.right() - width()));
    const int y = std::clamp(qRound(corner.y()), screen.top(), std::max(screen.top(), screen.bottom() - height()));
    setTransientParent(window);
    setPosition(x, y);
    show();
    setMouseGrabEnabled(true);
    setKeyboardGrabEnabled(true);
}

void PopupWindow::dismiss() {
    hide();
}

void PopupWindow::mousePressEvent(QMouseEvent* event) {
    if (QRect(QPoint(), size()).contains(event->position().toPoint()))
        QQuickWindow::mousePressEvent(event);
    else
        dismiss();
}

void PopupWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        dismiss();
    else
        QQuickWindow::keyPressEvent(event);
}

void PopupWindow::hideEvent(QHideEvent* event) {
    setMouseGrabEnabled(false);
    setKeyboardGrabEnabled(false);
    QQuickWindow::hideEvent(event);
    Q_EMIT dismissed();
}

} // namespace fendrel
