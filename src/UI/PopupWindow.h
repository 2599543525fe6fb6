#pragma once

#include "UI/BesideWindow.h"

namespace fendrel {

/// A menu's window beside a dock: takes pointer and keyboard while it is open, and closes on a press outside and on
/// Escape. (Its base is named in full for the tools of QML, which take the name as it is written.)
class PopupWindow : public fendrel::BesideWindow {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit PopupWindow(QWindow* parent = nullptr);

    void openBeside(QWindow* window, const QRectF& anchor, Qt::Edge edge, double gap) override;
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void dismissed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
};

} // namespace fendrel
