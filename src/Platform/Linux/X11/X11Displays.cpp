#include "Platform/Linux/X11/X11Displays.h"

namespace fendrel {

X11Displays::X11Displays(std::shared_ptr<X11Monitors> monitors, std::shared_ptr<X11Windows> windows)
    : m_monitors(std::move(monitors)), m_windows(std::move(windows)), m_displays(arranged()) {
    connect(m_monitors.get(), &X11Monitors::changed, this, &X11Displays::refresh);
    connect(m_windows.get(), &X11Windows::listChanged, this, &X11Displays::refresh);
    connect(m_windows.get(), &X11Windows::windowChanged, this, [this](const X11Window& now, const X11Window& before) {
        if (now.strut != before.strut || (now.strut && now != before))
            refresh();
    });
    connect(m_windows.get(), &X11Windows::currentDesktopChanged, this, [this] {
        m_displays = arranged();
        onSpaceChanged();
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
    QList<Display> displays;
    for (const X11Monitor& monitor : m_monitors->all())
        displays.append({.id = monitor.id,
                         .frame = monitor.frame,
                         .workArea = workArea(monitor.frame, struts, desktop),
                         .isMain = displays.isEmpty(),
                         .space = QString::number(m_windows->currentDesktop())});
    return displays;
}

} // namespace fendrel
