#pragma once

#include <QDebug>
#include <QLoggingCategory>
#include <QString>

namespace fendrel {

Q_DECLARE_LOGGING_CATEGORY(logApp)
Q_DECLARE_LOGGING_CATEGORY(logFiles)
Q_DECLARE_LOGGING_CATEGORY(logModes)
Q_DECLARE_LOGGING_CATEGORY(logFocus)
Q_DECLARE_LOGGING_CATEGORY(logMessages)
Q_DECLARE_LOGGING_CATEGORY(logDesktop)
Q_DECLARE_LOGGING_CATEGORY(logControl)

/// Text that says what the user is looking at. The log shows it as "<private>".
struct Private {
    const QString& text;
    friend QDebug operator<<(QDebug debug, const Private&) { return debug.noquote() << "<private>"; }
};

} // namespace fendrel
