#include "UI/Images/ShadowImages.h"

#include <algorithm>
#include <cmath>

namespace fendrel {

namespace {

/// Distance of a point to the outline of a rounded square in the middle of the plane; negative within.
double distanceToOutline(double x, double y, double halfSide, double radius) {
    const double dx = std::max(std::abs(x) - (halfSide - radius), 0.0);
    const double dy = std::max(std::abs(y) - (halfSide - radius), 0.0);
    return std::hypot(dx, dy) - radius;
}

} // namespace

QImage ShadowImages::requestImage(const QString& id, QSize* size, const QSize&) {
    const double radius = std::clamp(id.section(u'/', 0, 0).toDouble(), 0.0, 64.0);
    const double blur = std::clamp(id.section(u'/', 1, 1).toDouble(), 1.0, 64.0);
    const double drop = std::clamp(id.section(u'/', 2, 2).toDouble(), 0.0, 64.0);
    const int middle = static_cast<int>(std::ceil(radius + blur + drop));
    const int side = 2 * middle + 1;
    const double halfSide = radius + 0.5; // the part outside the corners is a pixel that gets stretched
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            const double x = column - middle;
            const double y = row - middle;
            // Half as dark at the outline of the shadow as far within it, like anything that is blurred.
            const double away = distanceToOutline(x, y - drop, halfSide, radius);
            const double strength = std::clamp((blur - away) / (2 * blur), 0.0, 1.0);
            // Hollow under what casts it, which may be translucent; cut softly, as its outline is.
            const double outside = std::clamp(distanceToOutline(x, y, halfSide, radius) + 1, 0.0, 1.0);
            const int alpha = static_cast<int>(std::lround(strength * strength * (3 - 2 * strength) * outside * 255));
            image.setPixel(column, row, qRgba(0, 0, 0, alpha));
        }
    }
    *size = image.size();
    return image;
}

} // namespace fendrel
