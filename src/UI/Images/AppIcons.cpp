#include "UI/Images/AppIcons.h"

#include "App/Workspace.h"

#include <QHash>
#include <QImageReader>
#include <QMutex>
#include <QPainter>
#include <QUrl>

namespace fendrel {

using namespace Qt::StringLiterals;

struct AppIcons::Icons {
    struct Entry {
        QString name;
        AppIcon icon;
        int version = 0;
    };
    QMutex mutex;
    QHash<QString, Entry> byBundleID;
};

namespace {

QImage readFile(const QString& path, QSize size) {
    QImageReader reader(path);
    reader.setScaledSize(reader.size().isEmpty() ? size : reader.size().scaled(size, Qt::KeepAspectRatio));
    return reader.read();
}

/// For applications without an icon: a tile with the first letter of the name.
QImage letterTile(const QString& name, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double inset = size.width() * 0.06;
    const QRectF tile = QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset);
    // The same application always gets the same colour.
    const int hue = static_cast<int>(qHash(name, 0) % 360);
    QLinearGradient fill(tile.topLeft(), tile.bottomLeft());
    fill.setColorAt(0, QColor::fromHsl(hue, 90, 150));
    fill.setColorAt(1, QColor::fromHsl(hue, 100, 115));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(tile, tile.width() * 0.23, tile.width() * 0.23);
    QFont font(u"Inter"_s);
    font.setPixelSize(qMax(1, qRound(tile.height() * 0.52)));
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(tile, Qt::AlignCenter, name.left(1).toUpper());
    return image;
}

} // namespace

class AppIcons::Provider : public QQuickImageProvider {
public:
    explicit Provider(std::shared_ptr<Icons> icons)
        : QQuickImageProvider(Image, ForceAsynchronousImageLoading), m_icons(std::move(icons)) {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override {
        const QSize wanted = requestedSize.isEmpty() ? QSize(64, 64) : requestedSize;
        const QString bundleID = QUrl::fromPercentEncoding(id.section(u'/', 0, 0).toLatin1());
        Icons::Entry entry;
        {
            const QMutexLocker lock(&m_icons->mutex);
            entry = m_icons->byBundleID.value(bundleID);
        }
        QImage image;
        if (!entry.icon.file.isEmpty())
            image = readFile(entry.icon.file, wanted);
        if (image.isNull() && !entry.icon.image.isNull())
            image = entry.icon.image.scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (image.isNull())
            image = letterTile(entry.name.isEmpty() ? bundleID : entry.name, wanted);
        *size = image.size();
        return image;
    }

private:
    std::shared_ptr<Icons> m_icons;
};

AppIcons::AppIcons(const Workspace& workspace) : m_workspace(workspace), m_icons(std::make_shared<Icons>()) {}

QString AppIcons::source(const QString& bundleID) {
    const AppIcon icon = m_workspace.icon(bundleID);
    const QString name = m_workspace.displayName(bundleID);
    const QMutexLocker lock(&m_icons->mutex);
    Icons::Entry& entry = m_icons->byBundleID[bundleID];
    if (entry.icon.file != icon.file || entry.icon.image.cacheKey() != icon.image.cacheKey() || entry.name != name) {
        entry.icon = icon;
        entry.name = name;
        ++entry.version;
    }
    return u"image://app/%1/%2"_s.arg(QString::fromLatin1(QUrl::toPercentEncoding(bundleID))).arg(entry.version);
}

QQuickImageProvider* AppIcons::makeProvider() const {
    return new Provider(m_icons);
}

} // namespace fendrel
