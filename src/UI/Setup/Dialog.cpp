#include "UI/Setup/Dialog.h"

#include <QCloseEvent>
#include <QQuickItem>
#include <QScreen>

namespace fendrel {

using namespace Qt::StringLiterals;

Dialog::Dialog(QQmlEngine& engine, const QString& title, const QString& view, const QVariantMap& properties, QSize size)
    : QQuickView(&engine, nullptr) {
    setFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setTitle(title);
    setInitialProperties(properties);
    setSource(QUrl(u"qrc:/qml/Fendrel/"_s + view));
    setResizeMode(SizeRootObjectToView);
    if (size.isEmpty() && rootObject())
        size = QSizeF(rootObject()->implicitWidth(), rootObject()->implicitHeight()).toSize();
    const QRect available = screen()->availableGeometry();
    size = size.boundedTo(available.size() - QSize(40, 80));
    setMinimumSize(size.boundedTo(QSize(560, 420)));
    setGeometry(QRect(available.center() - QPoint(size.width() / 2, size.height() / 2), size));
}

void Dialog::present() {
    show();
    raise();
    requestActivate();
}

void Dialog::closeEvent(QCloseEvent* event) {
    QQuickView::closeEvent(event);
    onClosed();
}

} // namespace fendrel
