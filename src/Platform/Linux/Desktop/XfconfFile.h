#pragma once

#include "Base/Handle.h"
#include "Ports/Clock.h"

#include <QFileSystemWatcher>
#include <QMap>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace fendrel {

/// Waits until what xfconf's service was told is in the file where it keeps a channel. It answers at once, but writes
/// five seconds after the last change, and until then a power cut would take the change back. Main thread.
class XfconfFile final : public QObject {
    Q_OBJECT
public:
    using Values = QMap<QString, std::optional<QString>>; ///< by the path of their property; nothing: not set

    XfconfFile(const QString& channel, Values values, Clock& clock, QObject* parent);

    /// Once, and never before the constructor has returned. Also, with a line in the log, when the file has not shown
    /// these values after a while: the service may keep it elsewhere.
    std::function<void()> onStored = [] {};

private:
    void look();
    void finish();

    QString m_path;
    Values m_values;
    QFileSystemWatcher m_folder;
    Handle m_patience;
    Handle m_looking;
};

} // namespace fendrel
