#pragma once

#include <QColor>
#include <QList>
#include <QQuickPaintedItem>

namespace fendrel {

/// A curve with the area below it, as charts are drawn: the past is on the left in every language.
class CurvePicture : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<qreal> points MEMBER m_points NOTIFY changed REQUIRED)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed REQUIRED)
    Q_PROPERTY(qreal now MEMBER m_now NOTIFY changed)
    Q_PROPERTY(bool isMarked MEMBER m_isMarked NOTIFY changed)
    Q_PROPERTY(qreal inset MEMBER m_inset NOTIFY changed)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed)

public:
    explicit CurvePicture(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QList<qreal> m_points; ///< from 0 to 1
    QColor m_color;
    qreal m_now = 1;         ///< how far along the points the present is, from 0 to 1
    bool m_isMarked = false; ///< the present is, and what is to come is hinted at
    qreal m_inset = 0;       ///< pixels that the curve keeps from left and right; the area goes on to the edge
    qreal m_radius = 0;      ///< of the lower corners, which the area fills
};

} // namespace fendrel
