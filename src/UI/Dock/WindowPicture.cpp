#include "UI/Dock/WindowPicture.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

namespace fendrel {

WindowPicture::WindowPicture(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    for (auto signal : {&WindowPicture::sourceChanged, &WindowPicture::windowIDChanged, &WindowPicture::roomChanged})
        connect(this, signal, this, &WindowPicture::follow);
}

void WindowPicture::componentComplete() {
    QQuickItem::componentComplete();
    follow();
}

void WindowPicture::itemChange(ItemChange change, const ItemChangeData& value) {
    QQuickItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        follow();
}

void WindowPicture::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    update();
    if (hasPicture())
        Q_EMIT pictureChanged();
}

void WindowPicture::follow() {
    m_following.reset();
    if (!m_source || !isComponentComplete() || !isVisible() || !window() || m_window <= 0 || m_room.isEmpty())
        return;
    const QSize pixels = (m_room * window()->effectiveDevicePixelRatio()).toSize();
    m_following =
        m_source->follow({static_cast<quint64>(m_window)}, pixels, [this](const QImage& picture) { take(picture); });
}

/// The corners are cut here: not every renderer can clip to a shape.
void WindowPicture::take(const QImage& picture) {
    const double ratio = window() ? window()->effectiveDevicePixelRatio() : 1;
    m_image = QImage(picture.size(), QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(picture));
    painter.drawRoundedRect(m_image.rect(), m_radius * ratio, m_radius * ratio);
    painter.end();
    m_image.setDevicePixelRatio(ratio);
    m_isNew = true;
    update();
    Q_EMIT pictureChanged();
}

QRectF WindowPicture::place() const {
    const QSizeF size = m_image.deviceIndependentSize();
    const QSizeF fitting = size.scaled(size.boundedTo(QSizeF(width(), height())), Qt::KeepAspectRatio);
    return {QPointF((width() - fitting.width()) / 2, (height() - fitting.height()) / 2), fitting};
}

QSGNode* WindowPicture::updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) {
    Q_UNUSED(data)
    auto* node = static_cast<QSGImageNode*>(old);
    if (!hasPicture() || place().isEmpty()) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        m_isNew = true;
    }
    if (std::exchange(m_isNew, false))
        node->setTexture(window()->createTextureFromImage(m_image));
    node->setRect(place());
    return node;
}

} // namespace fendrel
