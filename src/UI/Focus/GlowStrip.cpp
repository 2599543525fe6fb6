#include "UI/Focus/GlowStrip.h"

#include "UI/Focus/FocusGlow.h"

#include <QLinearGradient>
#include <QPainter>

#include <array>

namespace fendrel {

GlowStrip::GlowStrip() {
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint | Qt::WindowDoesNotAcceptFocus |
             Qt::WindowTransparentForInput);
    QSurfaceFormat format = requestedFormat();
    format.setAlphaBufferSize(8);
    setFormat(format);
    setTitle(QStringLiteral("Fendrel glow"));
}

void GlowStrip::setLook(const Look& look) {
    if (m_look == look)
        return;
    m_look = look;
    update();
}

/// Every strip paints the glow of all four edges, as far as it reaches into it: so they join without a seam.
void GlowStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (!m_look.isBlended) {
        painter.fillRect(QRect(QPoint(), size()), m_look.tint);
        return;
    }
    painter.fillRect(QRect(QPoint(), size()), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QRectF edges = m_look.edges;
    constexpr int depth = FocusGlow::depth;
    const std::array<std::pair<QPointF, QPointF>, 4> ways{{{edges.topLeft(), edges.topLeft() + QPointF(0, depth)},
                                                           {edges.bottomLeft(), edges.bottomLeft() - QPointF(0, depth)},
                                                           {edges.topLeft(), edges.topLeft() + QPointF(depth, 0)},
                                                           {edges.topRight(), edges.topRight() - QPointF(depth, 0)}}};
    for (const auto& [from, to] : ways) {
        QLinearGradient gradient(from, to);
        const auto at = [&](double place, double strength) {
            QColor color = m_look.tint;
            color.setAlphaF(static_cast<float>(strength * m_look.level));
            gradient.setColorAt(place, color);
        };
        at(0, 0.75);
        at(0.12, 0.42);
        at(0.4, 0.14);
        at(1, 0);
        painter.fillRect(QRectF(QPointF(), QSizeF(size())), gradient);
    }
}

} // namespace fendrel
