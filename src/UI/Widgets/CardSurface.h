#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace fendrel {

/// What a card is drawn on. A rectangle of Qt Quick's has ragged corners where a gradient is drawn without a graphics
/// card.
class CardSurface : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor upper MEMBER m_upper NOTIFY changed REQUIRED)
    Q_PROPERTY(QColor lower MEMBER m_lower NOTIFY changed REQUIRED)
    Q_PROPERTY(QColor line MEMBER m_line NOTIFY changed REQUIRED)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY changed REQUIRED)

public:
    explicit CardSurface(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QColor m_upper;
    QColor m_lower;
    QColor m_line; ///< of the edge, which is one pixel wide
    qreal m_radius = 0;
};

} // namespace fendrel
