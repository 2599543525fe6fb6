#include "Platform/Linux/X11/QuietRestore.h"

#include <algorithm>
#include <chrono>

namespace fendrel {

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 150ms;

} // namespace

QuietRestore::QuietRestore(X11Windows& windows, Clock& clock)
    : m_windows(windows), m_requests(windows.connection()), m_clock(clock) {}

void QuietRestore::restore(const QList<xcb_window_t>& windows) {
    const auto wanted = minimized(windows);
    // The last one that comes back is on top.
    std::for_each(wanted.crbegin(), wanted.crend(), [this](xcb_window_t window) { m_requests.clearHidden(window); });
    m_restoring += wanted;
    m_insist = m_clock.after(patience, [this] { insist(std::exchange(m_restoring, {})); });
}

void QuietRestore::insist(const QList<xcb_window_t>& windows) {
    // Some window managers leave it to applications to show themselves again, and then hand over the keyboard.
    const auto refused = minimized(windows);
    const xcb_window_t active = m_windows.active();
    std::for_each(refused.crbegin(), refused.crend(), [this](xcb_window_t window) { m_requests.map(window); });
    if (!refused.isEmpty() && active != XCB_WINDOW_NONE)
        m_requests.activate(active);
}

QList<xcb_window_t> QuietRestore::minimized(const QList<xcb_window_t>& windows) const {
    QList<xcb_window_t> minimized;
    for (const xcb_window_t id : windows) {
        const auto* window = m_windows.find(id);
        if (window != nullptr && window->isMinimized)
            minimized.append(id);
    }
    return minimized;
}

} // namespace fendrel
