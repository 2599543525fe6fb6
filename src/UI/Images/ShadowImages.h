#pragma once

#include <QQuickImageProvider>

namespace fendrel {

/// The soft shadow around a rounded rectangle, hollow inside, as a picture to be stretched by its middle:
/// "RADIUS/BLUR/DROP", to be installed as "shadow". Its corners are RADIUS + BLUR + DROP pixels wide. A live blur would
/// cost far more, and the software renderer has none.
class ShadowImages : public QQuickImageProvider {
public:
    ShadowImages() : QQuickImageProvider(Image) {}
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace fendrel
