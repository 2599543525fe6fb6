#pragma once

#include <QList>
#include <QPainterPath>
#include <QRectF>

namespace fendrel {

/// The curve through points from 0 to 1 that lie evenly along `area`, from its left to where the present is. It never
/// goes beyond the values around it. What is not over yet counts for the present as a whole: the last sale is in the
/// curve. Empty for fewer than two points.
QPainterPath curvePath(const QList<qreal>& points, qreal now, const QRectF& area);

} // namespace fendrel
