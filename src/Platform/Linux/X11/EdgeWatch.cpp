#include "Platform/Linux/X11/EdgeWatch.h"

#include "Platform/Linux/X11/EdgeHolder.h"

#include <pthread.h>
#include <sys/eventfd.h>

namespace fendrel {

EdgeWatch::EdgeWatch(const QList<GuardedEdge>& edges) : m_orders(std::make_shared<EdgeOrders>()) {
    m_orders->edges = edges;
    m_orders->wakeUp = FileDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    if (!m_orders->wakeUp)
        return;
    m_orders->isRunning = true;
    m_thread = std::thread([orders = m_orders] {
        pthread_setname_np(pthread_self(), "Fendrel edge gu"); // 15 letters are what the kernel keeps
        EdgeHolder(*orders).run();
        orders->isRunning = false;
    });
}

EdgeWatch::~EdgeWatch() {
    m_orders->isEnding = true;
    wake();
    if (!m_thread.joinable())
        return;
    // Connecting cannot be called off. A thread that is still at it ends by itself, whenever the server lets it.
    if (m_orders->isBound)
        m_thread.join();
    else
        m_thread.detach();
}

void EdgeWatch::setEdges(const QList<GuardedEdge>& edges) {
    {
        const std::lock_guard lock(m_orders->mutex);
        if (m_orders->edges == edges)
            return;
        m_orders->edges = edges;
    }
    wake();
}

void EdgeWatch::wake() const {
    if (m_orders->wakeUp)
        eventfd_write(m_orders->wakeUp.get(), 1);
}

} // namespace fendrel
