#include "UI/BesideWindow.h"

#include <QScreen>

#include <algorithm>

namespace fendrel {

BesideWindow::BesideWindow(QWindow* parent) : QQuickWindow(parent) {
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint | Qt::WindowDoesNotAcceptFocus);
    setColor(Qt::transparent);
}

void BesideWindow::openBeside(QWindow* window, const QRectF& anchor, Qt::Edge edge, double gap) {
    constexpr int inset = 8;
    const QRect screen = window->screen()->geometry().adjusted(inset, inset, -inset, -inset);
    const double room = edge == Qt::BottomEdge ? anchor.top() - gap - screen.top() : screen.height();
    const int fitting = std::min(height(), static_cast<int>(room));
    QPointF corner(anchor.center().x() - width() / 2.0, anchor.top() - gap - fitting);
    if (edge == Qt::LeftEdge)
        corner = {anchor.right() + gap, anchor.center().y() - fitting / 2.0};
    else if (edge == Qt::RightEdge)
        corner = {anchor.left() - gap - width(), anchor.center().y() - fitting / 2.0};
    const int x = std::clamp(qRound(corner.x()), screen.left(), std::max(screen.left(), screen.right() - width()));
    const int y = std::clamp(qRound(corner.y()), screen.top(), std::max(screen.top(), screen.bottom() - fitting));
    setTransientParent(window);
    setGeometry(x, y, width(), fitting);
    show();
}

} // namespace fendrel
