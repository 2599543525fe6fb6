#include "Platform/Linux/X11/HiddenWindows.h"

namespace fendrel {

HiddenWindows::HiddenWindows(X11Windows& windows) {
    connect(&windows, &X11Windows::windowChanged, this, [this](const X11Window& now, const X11Window& before) {
        if (before.isMinimized && !now.isMinimized)
            m_hidden.remove(now.id);
    });
    // The server gives the number of a window that is gone to another one.
    connect(&windows, &X11Windows::listChanged, this,
            [this, &windows] { m_hidden.removeIf([&](xcb_window_t id) { return windows.find(id) == nullptr; }); });
}

} // namespace fendrel
