#pragma once

#include "Base/FileDescriptor.h"
#include "Base/GuardedEdge.h"

#include <QList>

#include <xcb/xcb.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>

namespace fendrel {

/// Holds the pointer for as long as it lives, over a connection of its own: with the connection the server drops the
/// barriers too, however we end. Barriers hold a pointer that moves by steps, as a mouse does. One that is put
/// somewhere (tablets, virtual machines) passes them; a thread hears of every motion and puts it back. Where a program
/// put it, it stays until it moves, for that is told to nobody. The thread sleeps while the pointer rests. Main thread,
/// as far as it is not the thread itself.
class EdgeWatch {
public:
    /// Nothing where the server has no pointer barriers, or does not tell of every motion.
    static std::unique_ptr<EdgeWatch> start(const QList<GuardedEdge>& edges);
    ~EdgeWatch();
    EdgeWatch(const EdgeWatch&) = delete;
    EdgeWatch& operator=(const EdgeWatch&) = delete;

    bool isRunning() const { return m_isRunning; } ///< no more, once the server ended the connection
    void setEdges(const QList<GuardedEdge>& edges);

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    EdgeWatch();
    bool hasExtensions() const;
    bool listen() const;
    void placeBarriers(const QList<GuardedEdge>& edges);
    void wake() const;
    void run();
    void hold() const;

    std::unique_ptr<xcb_connection_t, Disconnect> m_xcb;
    xcb_window_t m_root{};
    QList<std::uint32_t> m_barriers;

    mutable std::mutex m_mutex;
    QList<GuardedEdge> m_edges; ///< behind the mutex

    FileDescriptor m_wakeUp;
    std::atomic<bool> m_isEnding{};
    std::atomic<bool> m_isRunning{};
    std::thread m_thread;
};

} // namespace fendrel
