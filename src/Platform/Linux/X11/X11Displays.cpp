#include "Platform/Linux/X11/X11Displays.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace fendrel {

X11Displays::X11Displays(std::shared_ptr<X11Monitors> monitors, std::shared_ptr<X11Windows> windows)
    : m_monitors(std::move(monitors)), m_windows(std::move(windows)), m_displays(arranged()) {
    const auto refreshIfFilled = [this] {
        if (std::ranges::any_of(m_displays, &Display::isFullScreen) || !openWindows().isEmpty())
            refresh();
    };
    connect(m_monitors.get(), &X11Monitors::changed, this, &X11Displays::refresh);
    connect(m_windows.get(), &X11Windows::listChanged, this, &X11Displays::refresh);
    connect(m_windows.get(), &X11Windows::stackingChanged, this, refreshIfFilled);
    connect(m_windows.get(), &X11Windows::frameChanged, this, refreshIfFilled);
    connect(m_windows.get(), &X11Windows::windowChanged, this,
            [this, refreshIfFilled](const X11Window& now, const X11Window& before) {
                const auto place = [](const X11Window& window) {
                    return std::tuple(window.isMinimized, window.isFullScreen, window.desktop, window.role);
                };
                if (now.strut != before.strut || (now.strut && now != before))
                    refresh();
                else if (place(now) != place(before))
                    refreshIfFilled();
            });
    connect(m_windows.get(), &X11Windows::currentDesktopChanged, this, [this] {
        const auto before = std::exchange(m_displays, arranged());
        onSpaceChanged();
        if (!std::ranges::equal(before, m_displays, {}, &Display::isFullScreen, &Display::isFullScreen))
            onChanged();
    });
}

void X11Displays::refresh() {
    auto displays = arranged();
    if (displays == m_displays)
        return;
    m_displays = std::move(displays);
    onChanged();
}

QList<Display> X11Displays::arranged() const {
    const auto struts = m_windows->struts();
    const QSize desktop = struts.isEmpty() ? QSize() : m_windows->desktopSize();
    const auto windows = openWindows();
    const auto isFilled = [&](const QRect& display) {
        for (const X11Window& window : windows) {
            const QRect frame = m_windows->frame(window.id).value_or(QRect());
            if (frame.contains(display))
                return window.isFullScreen;
            if (display.contains(frame.center()))
                return false;
        }
        return false;
    };
    QList<Display> displays;
    for (const X11Monitor& monitor : m_monitors->all())
        displays.append({.id = monitor.id,
                         .frame = monitor.frame,
                         .workArea = workArea(monitor.frame, struts, desktop),
                         .isMain = displays.isEmpty(),
                         .space = QString::number(m_windows->currentDesktop()),
                         .isFullScreen = isFilled(monitor.frame)});
    return displays;
}

/// What is seen of ordinary windows on this virtual desktop, the topmost first; nothing while none is full-screen.
/// Dialogs and palettes of a window lie over it without being in its way.
QList<X11Window> X11Displays::openWindows() const {
    QList<X11Window> windows;
    for (const X11Window& window : m_windows->all()) {
        const bool isHere = !window.desktop || *window.desktop == m_windows->currentDesktop();
        const bool isMain = window.role == X11Window::Role::ordinary && m_windows->find(window.transientFor) == nullptr;
        if (isHere && isMain && !window.isMinimized)
            windows.append(window);
    }
    if (std::ranges::none_of(windows, &X11Window::isFullScreen))
        return {};
    std::ranges::stable_sort(windows, [order = m_windows->stacking()](const X11Window& left, const X11Window& right) {
        return order.indexOf(left.id) > order.indexOf(right.id);
    });
    return windows;
}

} // namespace fendrel
