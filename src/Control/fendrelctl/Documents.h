#pragma once

#include <QString>

/// What is made from the table of commands.
namespace fendrel::control::Documents {

QString help();
QString manualPage(); ///< in man's language
QString bashCompletion();
QString zshCompletion();
QString fishCompletion();

} // namespace fendrel::control::Documents
