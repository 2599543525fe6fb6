#include "UI/Widgets/CurvePicture.h"

#include "UI/Widgets/CurvePath.h"

#include <QLinearGradient>
#include <QPainter>

namespace fendrel {

namespace {

QColor faded(QColor color, float opacity) {
    color.setAlphaF(opacity * color.alphaF());
    return color;
}

} // namespace

CurvePicture::CurvePicture(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &CurvePicture::changed, this, [this] { update(); });
}

void CurvePicture::paint(QPainter* painter) {
    constexpr qreal dot = 2.5;
    const QRectF bounds = boundingRect();
    const QPainterPath curve = curvePath(m_points, m_now, bounds.adjusted(m_inset, dot + 1, -m_inset, -dot - 1));
    if (curve.isEmpty())
        return;
    const QPointF start = curve.elementAt(0);
    const QPointF end = curve.currentPosition();

    // Below the curve, on to the left edge, and to the right one where the present is there.
    const qreal right = m_now < 1 ? end.x() : bounds.right();
    QPainterPath area(QPointF(bounds.left(), start.y()));
    area.connectPath(curve);
    area.lineTo(right, end.y());
    area.lineTo(right, bounds.bottom());
    area.lineTo(bounds.left(), bounds.bottom());
    area.closeSubpath();
    QPainterPath corners;
    corners.addRoundedRect(bounds.adjusted(0, -2 * m_radius, 0, 0), m_radius, m_radius);
    QLinearGradient fill(0, bounds.top(), 0, bounds.bottom());
    fill.setColorAt(0, faded(m_color, 0.24F));
    fill.setColorAt(1, faded(m_color, 0.06F));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(m_radius > 0 ? area & corners : area, fill);

    painter->setPen(QPen(m_color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(curve);
    if (!m_isMarked)
        return;
    if (m_now < 1) {
        painter->setPen(QPen(faded(m_color, 0.35F), 1, Qt::DotLine));
        painter->drawLine(end + QPointF(dot + 2, 0), QPointF(bounds.right() - m_inset, end.y()));
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_color);
    painter->drawEllipse(end, dot, dot);
}

} // namespace fendrel
