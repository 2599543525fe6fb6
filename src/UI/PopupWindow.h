#pragma once

#include <QQuickWindow>
#include <QtQmlIntegration>

namespace fendrel {

/// A menu's window beside a dock: takes pointer and keyboard while it is open, and closes on a press outside, on Escape
/// and when it loses them.
class PopupWindow : public QQuickWindow {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit PopupWindow(QWindow* parent = nullptr);

    /// Opens beside a rectangle of the desktop that belongs to another window: towards the middle of the screen from
    /// the edge that it is at, and always whole on that screen: it becomes lower where there is not the height for it.
    void openBeside(QWindow* window, const QRectF& anchor, Qt::Edge edge, double gap);
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void dismissed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
};

} // namespace fendrel
