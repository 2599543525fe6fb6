#pragma once

#include "Platform/Linux/X11/X11Monitors.h"
#include "Platform/Linux/X11/X11Windows.h"
#include "Ports/Displays.h"

#include <QObject>

#include <memory>

namespace fendrel {

/// Displays as RandR tells them, with work areas from what other programs' panels reserve, per display: the property
/// that window managers offer for it knows the desktop as a whole only. All displays show the same virtual desktop,
/// for no window manager tells otherwise.
/// The order of windows is asked for only while one of them is full-screen.
class X11Displays : public QObject, public Displays {
    Q_OBJECT
public:
    X11Displays(std::shared_ptr<X11Monitors> monitors, std::shared_ptr<X11Windows> windows);

    QList<Display> all() const override { return m_displays; }

private:
    void refresh();
    QList<Display> arranged() const;
    QList<X11Window> openWindows() const;

    std::shared_ptr<X11Monitors> m_monitors;
    std::shared_ptr<X11Windows> m_windows;
    QList<Display> m_displays;
};

} // namespace fendrel
