#include "Platform/Linux/X11/WindowIcon.h"

#include <cstring>

namespace fendrel {

QImage windowIcon(const QList<quint32>& property) {
    constexpr qint64 largest = 256;
    constexpr qint64 sane = 4096;
    qsizetype best = -1;
    qint64 bestWidth = 0;
    for (qsizetype at = 0; at + 2 <= property.size();) {
        const qint64 width = property[at];
        const qint64 height = property[at + 1];
        if (width < 1 || height < 1 || width > sane || height > sane || width * height > property.size() - at - 2)
            break; // nothing behind a broken picture can be found
        const bool isBetter =
            bestWidth == 0 || (bestWidth > largest ? width < bestWidth : width > bestWidth && width <= largest);
        if (isBetter) {
            best = at;
            bestWidth = width;
        }
        at += 2 + static_cast<qsizetype>(width * height);
    }
    if (best < 0)
        return {};
    QImage image(static_cast<int>(property[best]), static_cast<int>(property[best + 1]), QImage::Format_ARGB32);
    const auto width = static_cast<std::size_t>(image.width());
    for (int row = 0; row < image.height(); ++row)
        std::memcpy(image.scanLine(row), property.constData() + best + 2 + qsizetype{row} * image.width(), width * 4);
    return image;
}

} // namespace fendrel
