#pragma once

#include "Modes/Mode.h"

namespace fendrel {

/// A mode as the store keeps it.
struct StoredMode {
    QString id{};
    QString name{};
    QString symbol{};
    QString tint{};
    QStringList apps{};
    QStringList sites{};
    QStringList widgets{};
    qint64 order{};       ///< position in the user's list
    double dailyBudget{}; ///< seconds
    double entryDelay{};  ///< seconds

    static StoredMode from(const Mode& mode, qint64 order);
    /// A tint that nobody knows becomes graphite, the neutral one.
    Mode toMode() const;
};

} // namespace fendrel
