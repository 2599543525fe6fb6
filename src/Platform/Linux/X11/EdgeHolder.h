#pragma once

#include "Platform/Linux/X11/EdgeOrders.h"
#include "Platform/Linux/X11/XcbPointer.h"

#include <QList>

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>

namespace fendrel {

/// What the thread of an EdgeWatch does, over a connection of its own: with the connection the server drops the
/// barriers too, however we end. Barriers hold a pointer that moves by steps, as a mouse does. One that is put
/// somewhere (tablets, virtual machines, remote desktops) passes them: every motion of such a device is heard, and the
/// pointer put back. Where a program put it, it stays, for that is told to nobody.
class EdgeHolder {
public:
    explicit EdgeHolder(EdgeOrders& orders) : m_orders(orders) {}
    void run(); ///< until it is to end, or cannot go on

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    bool begin();
    bool hasExtensions();
    bool isOver() const;
    void sleep();
    bool takeOrders();
    void placeBarriers();
    void listen();
    QList<std::uint16_t> placingDevices();
    bool isPluggedIn(std::uint16_t device);
    void hold();

    /// Waits for a reply, or for the end, whichever comes first.
    template<class Reply>
    XcbPointer<Reply> await(unsigned int sequence) {
        return XcbPointer<Reply>(static_cast<Reply*>(awaitAny(sequence)));
    }
    void* awaitAny(unsigned int sequence);

    EdgeOrders& m_orders;
    std::unique_ptr<xcb_connection_t, Disconnect> m_xcb;
    xcb_window_t m_root{};
    xcb_atom_t m_deviceNode{};
    std::uint8_t m_inputOpcode{};
    QList<GuardedEdge> m_edges;
    QList<std::uint32_t> m_barriers;
    QList<std::uint16_t> m_heard; ///< the devices whose motions are told
    bool m_wasWoken = true;       ///< orders may be new
};

} // namespace fendrel
