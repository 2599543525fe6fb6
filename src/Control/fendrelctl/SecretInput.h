#pragma once

#include <QString>

#include <optional>

namespace fendrel::control {

/// Standard input to its end, or one line that a person types at a terminal, unseen. Nothing when there is none.
std::optional<QString> readSecret(const QString& prompt);

} // namespace fendrel::control
