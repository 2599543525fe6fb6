#pragma once

#include <QRect>

/// Between the window system's device pixels and the toolkit's logical ones, which differ on displays that are scaled.
/// A display's origin is the same in both.
namespace fendrel::ScreenSpace {

QRect toLogical(const QRect& device);
QRect toDevice(const QRect& logical);

} // namespace fendrel::ScreenSpace
