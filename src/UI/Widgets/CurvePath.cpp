#include "UI/Widgets/CurvePath.h"

#include <algorithm>
#include <cmath>

namespace fendrel {

QPainterPath curvePath(const QList<qreal>& points, qreal now, const QRectF& area) {
    if (points.size() < 2)
        return {};
    const qreal last = static_cast<qreal>(points.size() - 1);
    const qreal end = std::clamp(now, 0.0, 1.0) * last;
    const auto place = [&](qreal position, qreal value) {
        return QPointF(area.left() + area.width() * position / last,
                       area.bottom() - area.height() * std::clamp(value, 0.0, 1.0));
    };
    QPainterPath path(place(0, points.first()));
    for (qsizetype index = 1; static_cast<qreal>(index - 1) < end; ++index) {
        const QPointF from = path.currentPosition();
        const QPointF to = place(std::min(end, static_cast<qreal>(index)), points[index]);
        const QPointF half((to.x() - from.x()) / 2,
                           0); // level at both ends, so that it neither dips nor swells between
        path.cubicTo(from + half, to - half, to);
    }
    return path;
}

} // namespace fendrel
