#pragma once

#include "App/DockAppearance.h"

#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace fendrel {

/// A small picture of a dock in a look, over a wallpaper that suits it.
class LookPreview : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(fendrel::DockAppearance look READ look WRITE setLook NOTIFY changed)
    Q_PROPERTY(bool isBlurred READ isBlurred WRITE setBlurred NOTIFY changed)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY changed)

public:
    explicit LookPreview(QQuickItem* parent = nullptr);

    const DockAppearance& look() const { return m_look; }
    void setLook(const DockAppearance& look);
    bool isBlurred() const { return m_isBlurred; } ///< this desktop blurs what lies behind a dock that wants it
    void setBlurred(bool blurred);
    double radius() const { return m_radius; } ///< of the picture's corners, in pixels
    void setRadius(double radius);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    void paintBar(QPainter& painter, const QImage& wallpaper) const;
    void paintSurface(QPainter& painter, const QRectF& bar, double cornerRadius, const QImage& wallpaper) const;

    DockAppearance m_look;
    bool m_isBlurred{};
    double m_radius{};
};

} // namespace fendrel
