#include "UI/Settings/LookPreview.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>

namespace fendrel {

namespace {

constexpr double picturedWidth = 345; // of the piece of a desktop that is pictured
constexpr QRgb iconColors[] = {0xff2f7df0, 0xfff0644f, 0xff2ea055, 0xffe89a1c, 0xff8b5ce6};

/// Hills before a sky: with edges behind the dock, so that it is seen whether they are blurred.
QImage paintWallpaper(const QSize& size, double ratio, bool isDark) {
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double width = size.width();
    const double height = size.height();
    QLinearGradient sky(0, 0, 0, height);
    sky.setColorAt(0, isDark ? QColor(0x22, 0x2b, 0x52) : QColor(0x8e, 0xbf, 0xee));
    sky.setColorAt(1, isDark ? QColor(0x7a, 0x5a, 0x86) : QColor(0xfb, 0xe3, 0xc6));
    painter.fillRect(QRectF(0, 0, width, height), sky);
    painter.setBrush(isDark ? QColor(0xf1, 0xe3, 0xc4) : QColor(0xff, 0xf4, 0xd0));
    painter.drawEllipse(QPointF(width * 0.72, height * 0.3), height * 0.11, height * 0.11);
    const auto hill = [&](double x, double top, double reach, const QColor& color) {
        QPainterPath path(QPointF(x - reach, height));
        path.quadTo(QPointF(x, 2 * top - height), QPointF(x + reach, height));
        painter.fillPath(path, color);
    };
    hill(width * 0.16, height * 0.42, width * 0.5, isDark ? QColor(0x4a, 0x41, 0x74) : QColor(0x9f, 0xb8, 0xa0));
    hill(width * 0.84, height * 0.5, width * 0.52, isDark ? QColor(0x38, 0x35, 0x62) : QColor(0x76, 0x9c, 0x82));
    hill(width * 0.46, height * 0.7, width * 0.5, isDark ? QColor(0x25, 0x28, 0x4c) : QColor(0x4f, 0x7f, 0x6a));
    return image;
}

/// As a compositor blurs: what is made small and large again has no edges.
QImage blurred(const QImage& image) {
    QImage small = image.scaled(image.size() / 10, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage large = small.scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    large.setDevicePixelRatio(image.devicePixelRatio());
    return large;
}

} // namespace

LookPreview::LookPreview(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &LookPreview::changed, this, [this] { update(); });
}

void LookPreview::setLook(const DockAppearance& look) {
    if (look == m_look)
        return;
    m_look = look;
    Q_EMIT changed();
}

void LookPreview::setBlurred(bool blurred) {
    if (blurred == m_isBlurred)
        return;
    m_isBlurred = blurred;
    Q_EMIT changed();
}

void LookPreview::setRadius(double radius) {
    if (qFuzzyCompare(radius, m_radius))
        return;
    m_radius = radius;
    Q_EMIT changed();
}

void LookPreview::paint(QPainter* painter) {
    const double ratio = painter->device()->devicePixelRatioF();
    const QImage wallpaper = paintWallpaper(size().toSize(), ratio, m_look.isDark);
    // As a brush and not through a clip, so that the corners are smooth.
    const auto paintRounded = [](QPainter& onto, const QRectF& area, double radius, const QImage& image) {
        onto.setPen(Qt::NoPen);
        onto.setBrush(image);
        onto.drawRoundedRect(area, radius, radius);
    };
    QImage picture = wallpaper;
    {
        QPainter onto(&picture);
        onto.setRenderHint(QPainter::Antialiasing);
        paintBar(onto, wallpaper);
    }
    paintRounded(*painter, QRectF(QPointF(), size()), m_radius, picture);
}

void LookPreview::paintBar(QPainter& painter, const QImage& wallpaper) const {
    const double shrinking = width() / picturedWidth;
    const double icon = 46 * m_look.iconScale * shrinking;
    const double gap = (m_look.spacing + 2) * shrinking;
    const double depth = icon + 28 * shrinking;
    const double edge = 9 * shrinking;
    const double words = 36 * shrinking;
    const double room = width() - 50 * shrinking - 2 * edge - words - 2 * gap;
    const int count = std::clamp(qFloor((room + gap) / (icon + gap)), 1, static_cast<int>(std::size(iconColors)));
    const double length = 2 * edge + words + 2 * gap + count * (icon + gap) - gap;
    const QRectF bar(std::round((width() - length) / 2), std::round(height() - depth - 28 * shrinking),
                     std::round(length), std::round(depth));
    paintSurface(painter, bar, m_look.cornerRadius * shrinking, wallpaper);

    const double middle = bar.center().y();
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_look.text());
    painter.drawRoundedRect(QRectF(bar.left() + edge + 1, middle - 10 * shrinking, words * 0.8, 7 * shrinking), 1, 1);
    painter.drawRoundedRect(QRectF(bar.left() + edge + 1, middle + 3 * shrinking, words * 0.55, 7 * shrinking), 1, 1);
    QColor separator = m_look.text();
    separator.setAlphaF(0.25F);
    painter.fillRect(QRectF(std::round(bar.left() + edge + words + gap / 2), middle - icon * 0.35, 1, icon * 0.7),
                     separator);
    for (int index = 0; index < count; ++index) {
        const double x = bar.left() + edge + words + 2 * gap + index * (icon + gap);
        painter.setBrush(QColor::fromRgb(iconColors[index]));
        painter.drawRoundedRect(QRectF(x, middle - icon / 2, icon, icon), icon * 0.24, icon * 0.24);
    }
}

void LookPreview::paintSurface(QPainter& painter, const QRectF& bar, double cornerRadius,
                               const QImage& wallpaper) const {
    const double radius = std::min(cornerRadius, bar.height() / 2);
    QPainterPath outline;
    outline.addRoundedRect(bar, radius, radius);
    QPainterPath everything;
    everything.addRect(QRectF(QPointF(), size()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(0, 0, 0, static_cast<float>(m_look.shadow * 0.12)));
    painter.setClipPath(everything - outline); // no shadow is seen through the bar
    for (int reach = 1; reach <= 5; ++reach)
        painter.drawRoundedRect(bar.adjusted(-reach, 1 - reach, reach, 1 + reach), radius + reach, radius + reach);
    painter.setClipping(false);

    if (m_isBlurred && m_look.blur)
        painter.fillPath(outline, blurred(wallpaper));
    QColor fill = m_look.background;
    fill.setAlphaF(static_cast<float>(m_look.opacity));
    painter.fillPath(outline, fill);
    QColor line = m_look.text();
    line.setAlphaF(static_cast<float>(m_look.border));
    const double inner = std::max(0.0, radius - 0.5);
    painter.setPen(QPen(line, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(bar.adjusted(0.5, 0.5, -0.5, -0.5), inner, inner);
}

} // namespace fendrel
