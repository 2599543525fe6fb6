#pragma once

#include "Platform/Linux/X11/X11Connection.h"

namespace fendrel {

/// What we ask the window manager to do with windows, in the way that task bars do. Nothing waits; a window that is
/// gone, or a window manager that refuses, changes nothing.
class X11Requests {
public:
    explicit X11Requests(X11Connection& connection) : m_connection(connection) {}

    /// Restores it too, and shows the virtual desktop that it is on.
    void activate(xcb_window_t window, xcb_timestamp_t time = XCB_CURRENT_TIME) const;
    void minimize(xcb_window_t window) const;
    void clearHidden(xcb_window_t window) const; ///< restores it, without the keyboard; not everywhere
    void map(xcb_window_t window) const;         ///< restores it, and may give it the keyboard
    void close(xcb_window_t window) const;
    void killClient(xcb_window_t window) const; ///< cuts the application's connection to the server
    void addStates(xcb_window_t window, xcb_atom_t first, xcb_atom_t second) const;
    void moveToDesktop(xcb_window_t window, quint32 desktop) const; ///< 0xFFFFFFFF: every one
    void stackAbove(xcb_window_t window) const;

private:
    X11Connection& m_connection;
};

} // namespace fendrel
