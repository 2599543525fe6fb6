#include "UI/PopupWindow.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace fendrel {

PopupWindow::PopupWindow(QWindow* parent) : BesideWindow(parent) {
    setFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
}

void PopupWindow::openBeside(QWindow* window, const QRectF& anchor, Qt::Edge edge, double gap) {
    BesideWindow::openBeside(window, anchor, edge, gap);
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
