#include "UI/Images/SymbolImages.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Symbols are drawn in lines, the ones that are called filled too.
QString file(const QString& name) {
    const QString outlined = name.endsWith(".fill"_L1) ? name.chopped(5) : name;
    return u":/symbols/"_s + outlined + u".svg"_s;
}

} // namespace

bool SymbolImages::exists(const QString& name) {
    return QFile::exists(file(name));
}

QImage SymbolImages::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QString name = id.section(u'/', 0, 0);
    QImage image(requestedSize.isEmpty() ? QSize(24, 24) : requestedSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(file(exists(name) ? name : u"app.dashed"_s));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor(u'#' + id.section(u'/', 1, 1)));
    *size = image.size();
    return image;
}

} // namespace fendrel
