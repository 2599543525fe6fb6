#pragma once

#include <QString>

namespace fendrel {

/// What a reader sees of a notification's body: its markup is undone, pictures become their descriptions. Text that
/// only looks like markup stays, as many programs send it unescaped.
QString plainText(const QString& markup);

/// At most so much is kept of a notification. Never ends within a character.
QString boundedTitle(const QString& text);
QString boundedBody(const QString& text);

} // namespace fendrel
