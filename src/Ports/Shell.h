#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace fendrel {

struct Mail {
    QString to{};
    QString subject{};
    QString body{};
    QStringList attachments{}; ///< paths
};

/// What the user's desktop does for us. Main thread; nothing waits for the programs that are started.
class Shell {
public:
    virtual ~Shell() = default;
    virtual void openAddress(const QUrl& address) = 0;
    virtual void reveal(const QStringList& paths) = 0; ///< shows the files, selected, in the file manager
    /// Opens a new mail in the user's mail program. `done` tells whether a program took it, attachments included.
    virtual void composeMail(const Mail& mail, std::function<void(bool isTaken)> done) = 0;
};

} // namespace fendrel
