#include "Platform/Linux/X11/X11Requests.h"

namespace fendrel {

namespace {

// A person asked for it, not the window's application: window managers then do not hold it for a theft of the focus.
constexpr quint32 fromUser = 2;

} // namespace

void X11Requests::activate(xcb_window_t window, xcb_timestamp_t time) const {
    m_connection.sendToWindowManager(window, m_connection.atoms().netActiveWindow, {fromUser, time, XCB_WINDOW_NONE});
}

void X11Requests::minimize(xcb_window_t window) const {
    constexpr quint32 iconic = 3;
    m_connection.sendToWindowManager(window, m_connection.atoms().wmChangeState, {iconic});
}

void X11Requests::clearHidden(xcb_window_t window) const {
    constexpr quint32 remove = 0;
    const auto& atoms = m_connection.atoms();
    m_connection.sendToWindowManager(window, atoms.netWmState, {remove, atoms.netWmStateHidden, 0, fromUser});
}

void X11Requests::map(xcb_window_t window) const {
    // The window manager gets this in our place, and maps the window itself.
    xcb_map_window(m_connection.xcb(), window);
    m_connection.flush();
}

void X11Requests::close(xcb_window_t window) const {
    m_connection.sendToWindowManager(window, m_connection.atoms().netCloseWindow, {XCB_CURRENT_TIME, fromUser});
}

void X11Requests::killClient(xcb_window_t window) const {
    xcb_kill_client(m_connection.xcb(), window);
    m_connection.flush();
}

void X11Requests::addStates(xcb_window_t window, xcb_atom_t first, xcb_atom_t second) const {
    constexpr quint32 add = 1;
    m_connection.sendToWindowManager(window, m_connection.atoms().netWmState, {add, first, second, fromUser});
}

void X11Requests::moveToDesktop(xcb_window_t window, quint32 desktop) const {
    m_connection.sendToWindowManager(window, m_connection.atoms().netWmDesktop, {desktop, fromUser});
}

void X11Requests::stackAbove(xcb_window_t window) const {
    const std::uint32_t mode = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(m_connection.xcb(), window, XCB_CONFIG_WINDOW_STACK_MODE, &mode);
    m_connection.sendToWindowManager(window, m_connection.atoms().netRestackWindow,
                                     {fromUser, XCB_WINDOW_NONE, XCB_STACK_MODE_ABOVE});
}

} // namespace fendrel
