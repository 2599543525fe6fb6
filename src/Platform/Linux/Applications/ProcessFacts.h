#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace fendrel {

/// What the kernel tells of a process that helps to name its application. What cannot be read stays empty.
struct ProcessFacts {
    qint64 startTime{}; ///< clock ticks since the machine started
    QString executable{};
    QStringList arguments{};
    QString launchedEntry{}; ///< path of the desktop entry that this very process was started from
    QString flatpakID{};
    QString snapName{};
    QString snapApp{};
    bool operator==(const ProcessFacts&) const = default;

    /// `proc` is where the process file system is mounted.
    static ProcessFacts read(qint64 pid, const QString& proc = QStringLiteral("/proc"));
};

} // namespace fendrel
