#pragma once

#include <QString>

#include <optional>

namespace fendrel {

/// The path that a "file:" address names. Nothing if it is another computer's, or its bytes are no text in UTF-8: the
/// toolkit's files could not be opened by what such a path would become.
std::optional<QString> pathOfFileAddress(const QString& address);

} // namespace fendrel
