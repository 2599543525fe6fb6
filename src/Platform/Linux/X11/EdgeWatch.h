#pragma once

#include "Platform/Linux/X11/EdgeOrders.h"

#include <memory>
#include <thread>

namespace fendrel {

/// Holds the pointer for as long as it lives, on a thread of its own (see EdgeHolder). No call waits for the server,
/// which may be busy with one program alone. Main thread.
class EdgeWatch {
public:
    explicit EdgeWatch(const QList<GuardedEdge>& edges);
    ~EdgeWatch();
    EdgeWatch(const EdgeWatch&) = delete;
    EdgeWatch& operator=(const EdgeWatch&) = delete;

    /// No more, once the server ended the connection, or turned out to have no pointer barriers.
    bool isRunning() const { return m_orders->isRunning; }
    void setEdges(const QList<GuardedEdge>& edges);

private:
    void wake() const;

    std::shared_ptr<EdgeOrders> m_orders;
    std::thread m_thread;
};

} // namespace fendrel
