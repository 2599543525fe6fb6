#pragma once

#include <QString>

namespace fendrel::ModelServerText {

/// Keeps line breaks and what is needed to write; takes out every other control and invisible formatting character,
/// by which a text can look like another one.
QString plain(const QString& text);

/// Also breaks up what chat templates use as marks of who speaks. For what other programs wrote.
QString untrusted(const QString& text);

} // namespace fendrel::ModelServerText
