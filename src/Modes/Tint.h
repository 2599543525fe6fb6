#pragma once

#include <QColor>
#include <QObject>
#include <QString>

namespace fendrel::tint {
Q_NAMESPACE

enum class Tint { amber, coral, pink, purple, blue, teal, green, graphite };
Q_ENUM_NS(Tint)

} // namespace fendrel::tint

namespace fendrel {

using tint::Tint;

QColor color(Tint tint);
QString hex(Tint tint); ///< "#rrggbb"

} // namespace fendrel
