#pragma once

#include "Base/Result.h"
#include "Base/WallTime.h"
#include "Base/Worker.h"

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

namespace fendrel {

/// Writes reports on a problem, as archives that anybody can open. Main thread; nothing of it blocks.
class DiagnosticBundle : public QObject {
    Q_OBJECT
public:
    DiagnosticBundle();

    using Done = std::function<void(const Result<QString, QString>& path)>; ///< or why there is none, for the user

    /// The folder is made if it isn't there. `done` comes later, and not after this has gone.
    void write(const QMap<QString, QByteArray>& files, const QString& folder, WallTime now, Done done);

private:
    Worker m_worker; ///< the last: nothing it posts arrives once it has ended
};

} // namespace fendrel
