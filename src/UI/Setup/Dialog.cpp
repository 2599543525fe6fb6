#include "UI/Setup/Dialog.h"

#include <QCloseEvent>
#include <QIcon>
#include <QQuickItem>
#include <QScreen>

namespace fendrel {

using namespace Qt::StringLiterals;

Dialog::Dialog(QQmlEngine& engine, const QString& title, const QString& view, const QVariantMap& properties, QSize size)
    : QQuickView(&engine, nullptr) {
    setFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setTitle(title);
    setIcon(QIcon(u":/icons/fendrel.svg"_s)); // docks and cards need none, and drawing it in all sizes takes a while
    setInitialProperties(properties);
    setSource(QUrl(u"qrc:/qml/Fendrel/"_s + view));
    setResizeMode(SizeRootObjectToView);
    if (rootObject())
        rootObject()->setFocus(true); // or no key reaches the view
    m_wanted = size;
    if (size.isEmpty() && rootObject()) {
        const auto fit = [this] {
            m_wanted = QSizeF(rootObject()->implicitWidth(), rootObject()->implicitHeight()).toSize();
            place();
        };
        connect(rootObject(), &QQuickItem::implicitWidthChanged, this, fit);
        connect(rootObject(), &QQuickItem::implicitHeightChanged, this, fit);
        fit();
    } else {
        place();
    }
    connect(screen(), &QScreen::availableGeometryChanged, this, [this] {
        if (isWhereItWasPut())
            place();
    });
}

void Dialog::place() {
    constexpr int gap = 8;
    constexpr QMargins usualFrame(1, 28, 1, 1); // until the window manager has put one around it
    const QMargins frame = frameMargins().isNull() ? usualFrame : frameMargins();
    const QRect room = screen()->availableGeometry().marginsRemoved(frame).adjusted(gap, gap, -gap, -gap);
    const QSize size = m_wanted.boundedTo(room.size());
    setMinimumSize(size.boundedTo(QSize(560, 420)));
    m_placed = QRect(room.center() - QPoint(size.width() / 2, size.height() / 2), size);
    setGeometry(m_placed);
}

/// A window manager may put it beside its place by as much as the frame that it adds.
bool Dialog::isWhereItWasPut() const {
    constexpr int tolerance = 40;
    return size() == m_placed.size() && (position() - m_placed.topLeft()).manhattanLength() <= tolerance;
}

void Dialog::showOver(QWindow* parent) {
    setTransientParent(parent);
    setModality(Qt::WindowModal);
    present();
}

void Dialog::present() {
    show();
    raise();
    requestActivate();
}

void Dialog::keyPressEvent(QKeyEvent* event) {
    QQuickView::keyPressEvent(event);
    const bool isEnd = event->key() == Qt::Key_Escape || event->keyCombination() == (Qt::CTRL | Qt::Key_W);
    if (isEnd && !event->isAccepted()) {
        event->accept();
        close();
    }
}

void Dialog::closeEvent(QCloseEvent* event) {
    if (QQuickItem* focused = activeFocusItem())
        focused->setFocus(false); // a field that is left takes over what was typed in it
    QQuickView::closeEvent(event);
    onClosed();
}

} // namespace fendrel
