#pragma once

#include <QStringList>

namespace fendrel {

/// The folders in which the coding agent keeps its logs; they may not exist. Its environment may name others, which
/// `configured` holds, with commas between them; empty: the usual ones.
QStringList usageRoots(const QString& configured = qEnvironmentVariable("CLAUDE_CONFIG_DIR"));

} // namespace fendrel
