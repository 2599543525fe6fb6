#pragma once

#include <QString>

namespace fendrel {

/// The hardware virtual key code that combinations are stored with, of the key with this label on a standard keyboard;
/// -1 where there is none. Labels are those of `HotKeys`.
int keyCode(const QString& label);

} // namespace fendrel
