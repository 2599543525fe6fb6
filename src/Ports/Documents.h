#pragma once

#include "Base/Handle.h"

#include <QList>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace fendrel {

/// A file that an application has open for its user.
struct OpenDocument {
    QString bundleID{};
    QUrl file{}; ///< a local one
    bool operator==(const OpenDocument&) const = default;
};

/// A running application, and what its windows are called.
struct DocumentOwner {
    QString bundleID{};
    QList<qint64> pids{};
    QStringList titles{};
    bool operator==(const DocumentOwner&) const = default;
};

/// Which of the user's files are open, and there at all. Main thread; nothing blocks.
class Documents {
public:
    using Found = std::function<void(const QList<OpenDocument>&)>;
    using Gone = std::function<void(const QList<QUrl>&)>;
    virtual ~Documents() = default;

    /// `done` comes later, once, and never after the handle is dropped. An application that can't be asked, or does not
    /// answer in time, has none. A disk that doesn't answer may keep it away for good.
    virtual Handle find(const QList<DocumentOwner>& owners, Found done) = 0;

    /// Those of the local files that are no longer there. `done` comes as above.
    virtual Handle findGone(const QList<QUrl>& files, Gone done) = 0;
};

} // namespace fendrel
