#include "UI/Images/TrayImages.h"

#include "UI/Images/SymbolImages.h"

#include <QColor>
#include <QPainter>

#include <cmath>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Relative luminance as WCAG 2 defines it.
double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

QImage TrayImages::requestImage(const QString& id, QSize* size, const QSize&) {
    const QString symbol = id.section(u'/', 0, 0);
    const QColor tint(u'#' + id.section(u'/', 1, 1));
    const bool isFocused = id.section(u'/', 2, 2) == u"focus"_s;

    constexpr int side = 88; // four times the usual size of status icons, so that panels only ever scale it down
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    painter.drawRoundedRect(QRectF(4, 4, side - 8, side - 8), 22, 22);

    constexpr int glyph = 62; // lines of a whole pixel in the smallest panels
    const QString shade = luminance(tint) > 0.3 ? u"ff1c1d21"_s : u"ffffffff"_s;
    QSize glyphSize;
    const QImage picture = SymbolImages().requestImage(symbol + u'/' + shade, &glyphSize, QSize(glyph, glyph));
    painter.drawImage(QPoint((side - glyph) / 2, (side - glyph) / 2), picture);

    if (isFocused) {
        const QRectF dot(side - 34, side - 34, 32, 32);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.drawEllipse(dot.adjusted(-6, -6, 6, 6));
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.setBrush(QColor(0xe5, 0x48, 0x4d));
        painter.drawEllipse(dot);
    }
    *size = image.size();
    return image;
}

} // namespace fendrel
