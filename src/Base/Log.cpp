#include "Base/Log.h"

namespace fendrel {

Q_LOGGING_CATEGORY(logApp, "fendrel.app", QtInfoMsg)
Q_LOGGING_CATEGORY(logFiles, "fendrel.files", QtInfoMsg)
Q_LOGGING_CATEGORY(logModes, "fendrel.modes", QtInfoMsg)
Q_LOGGING_CATEGORY(logFocus, "fendrel.focus", QtInfoMsg)
Q_LOGGING_CATEGORY(logMessages, "fendrel.messages", QtInfoMsg)
Q_LOGGING_CATEGORY(logDesktop, "fendrel.desktop", QtInfoMsg)
Q_LOGGING_CATEGORY(logControl, "fendrel.control", QtInfoMsg)

} // namespace fendrel
