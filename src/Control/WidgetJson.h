#pragma once

#include "Widgets/Widgets.h"

#include <QJsonValue>

namespace fendrel::control::json {

/// A moment as scripts read it: ISO 8601, in UTC, with milliseconds.
QJsonValue text(WallTime time);

/// All that the feed behind a widget has, under the names that its own types have; null before the first good answer,
/// and for a widget without a feed.
QJsonValue value(Widgets& widgets, DockWidget widget);

} // namespace fendrel::control::json
