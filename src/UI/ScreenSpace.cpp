#include "UI/ScreenSpace.h"

#include <QGuiApplication>
#include <QScreen>

namespace fendrel::ScreenSpace {

namespace {

QRect scaled(const QRect& rect, QPoint origin, double factor) {
    const auto map = [&](int value, int start) { return start + qRound((value - start) * factor); };
    const QPoint topLeft(map(rect.left(), origin.x()), map(rect.top(), origin.y()));
    return {topLeft, QSize(qRound(rect.width() * factor), qRound(rect.height() * factor))};
}

} // namespace

QRect toLogical(const QRect& device) {
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect geometry = screen->geometry();
        const double ratio = screen->devicePixelRatio();
        const QRect frame(geometry.topLeft(), (QSizeF(geometry.size()) * ratio).toSize());
        if (frame.contains(device.center()))
            return scaled(device, geometry.topLeft(), 1 / ratio);
    }
    return device;
}

QRect toDevice(const QRect& logical) {
    const QScreen* screen = QGuiApplication::screenAt(logical.center());
    if (!screen)
        return logical;
    return scaled(logical, screen->geometry().topLeft(), screen->devicePixelRatio());
}

} // namespace fendrel::ScreenSpace
