#pragma once

#include "Base/FileDescriptor.h"
#include "Base/GuardedEdge.h"

#include <QList>

#include <atomic>
#include <mutex>

namespace fendrel {

/// What the thread that holds the pointer is told, and what it tells. Any thread.
struct EdgeOrders {
    std::mutex mutex;
    QList<GuardedEdge> edges; ///< behind the mutex

    FileDescriptor wakeUp;         ///< an event counter; raised whenever something here was changed for the thread
    std::atomic<bool> isEnding{};  ///< nothing is to be waited for any more
    std::atomic<bool> isRunning{}; ///< false for good, once nothing can be held
    std::atomic<bool> isBound{};   ///< from now on the thread ends soon after it is told to
};

} // namespace fendrel
