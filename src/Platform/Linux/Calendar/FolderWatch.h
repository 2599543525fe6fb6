#pragma once

#include "Base/FileDescriptor.h"

#include <QHash>
#include <QSocketNotifier>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace fendrel {

/// Tells when iCalendar files in some folders are written, come or go, also when one is written in place. One watch of
/// the kernel's a folder, however many files are in it. Main thread.
class FolderWatch {
public:
    FolderWatch();

    /// From now on these and no others. True where there are new ones among them, in which something may have happened
    /// since they were read.
    bool set(const QStringList& folders);
    /// False where some can't be watched; they are to be looked at again after a while.
    bool isComplete() const { return m_isComplete; }

    std::function<void()> onChanged = [] {};

private:
    void read();

    FileDescriptor m_inotify;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QHash<QString, int> m_watches;
    bool m_isComplete = false;
};

} // namespace fendrel
