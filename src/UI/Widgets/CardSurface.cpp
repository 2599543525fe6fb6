#include "UI/Widgets/CardSurface.h"

#include <QLinearGradient>
#include <QPainter>

namespace fendrel {

CardSurface::CardSurface(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &CardSurface::changed, this, [this] { update(); });
}

void CardSurface::paint(QPainter* painter) {
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0, m_upper);
    gradient.setColorAt(1, m_lower);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(gradient);
    painter->setPen(QPen(m_line, 1));
    painter->drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), m_radius, m_radius);
}

} // namespace fendrel
