#pragma once

#include <QImage>
#include <QList>

namespace fendrel {

/// The picture in a window's _NET_WM_ICON that suits a dock best: the largest up to 256 pixels, else the smallest.
/// A null image when there is none, or what is there is broken.
QImage windowIcon(const QList<quint32>& property);

} // namespace fendrel
