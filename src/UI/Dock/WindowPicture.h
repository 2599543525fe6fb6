#pragma once

#include "UI/Dock/PreviewSource.h"

#include <QImage>
#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace fendrel {

/// What another application's window shows, as long as this is visible: the whole picture, as large as there is room,
/// in the middle.
class WindowPicture : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(fendrel::PreviewSource* source MEMBER m_source NOTIFY sourceChanged REQUIRED)
    Q_PROPERTY(double windowID MEMBER m_window NOTIFY windowIDChanged REQUIRED)
    Q_PROPERTY(QSizeF room MEMBER m_room NOTIFY roomChanged REQUIRED)
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY radiusChanged)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY pictureChanged)
    Q_PROPERTY(QRectF place READ place NOTIFY pictureChanged)

public:
    explicit WindowPicture(QQuickItem* parent = nullptr);

    bool hasPicture() const { return !m_image.isNull(); }
    QRectF place() const; ///< where in this item the picture is

Q_SIGNALS:
    void sourceChanged();
    void windowIDChanged();
    void roomChanged(); ///< how large the picture may become, in logical pixels
    void radiusChanged();
    void pictureChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    void follow();
    void take(const QImage& picture);

    QPointer<PreviewSource> m_source;
    double m_window = 0; ///< its number: QML has no whole numbers of that size
    QSizeF m_room;
    double m_radius = 0;
    QImage m_image; ///< with round corners
    bool m_isNew = false;
    Handle m_following;
};

} // namespace fendrel
