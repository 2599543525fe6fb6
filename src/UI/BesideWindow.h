#pragma once

#include <QQuickWindow>
#include <QtQmlIntegration>

namespace fendrel {

/// A small window beside a dock, for the pointer alone: it takes neither the keyboard nor the front.
class BesideWindow : public QQuickWindow {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit BesideWindow(QWindow* parent = nullptr);

    /// Opens beside a rectangle of the desktop that belongs to another window: towards the middle of the screen from
    /// the edge that it is at, and always whole on that screen: it becomes lower where there is not the height for it.
    /// Open already, it moves there.
    virtual void openBeside(QWindow* window, const QRectF& anchor, Qt::Edge edge, double gap);
};

} // namespace fendrel
