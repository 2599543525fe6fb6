#pragma once

#include "Base/WallTime.h"
#include "Base/Worker.h"

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace fendrel {

/// Writes reports on a problem, as archives that anybody can open. Main thread; nothing of it blocks.
class DiagnosticBundle : public QObject {
    Q_OBJECT
public:
    DiagnosticBundle();

    /// A name for one that is made now, without its folder.
    static QString suggestedName(WallTime now);

    using Done = std::function<void(const std::optional<QString>& problem)>; ///< for the user; nothing: it is written

    /// The folder is made if it isn't there, a file that is there replaced. `done` comes later, and not after this has
    /// gone.
    void write(const QMap<QString, QByteArray>& files, const QString& path, Done done);

private:
    Worker m_worker; ///< the last: nothing it posts arrives once it has ended
};

} // namespace fendrel
