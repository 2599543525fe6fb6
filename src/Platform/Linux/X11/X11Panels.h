#pragma once

#include "Platform/Linux/X11/SelectionOwner.h"
#include "Platform/Linux/X11/X11Monitors.h"
#include "Platform/Linux/X11/X11Requests.h"
#include "Platform/Linux/X11/X11Windows.h"
#include "Ports/Panels.h"

#include <QHash>
#include <QObject>

#include <memory>

namespace fendrel {

/// Gives our panels' windows the properties by which window managers know docks and dialogs, and keeps them that way:
/// window managers clear some when a window hides, and the toolkit writes its own when it shows.
class X11Panels : public QObject, public Panels {
    Q_OBJECT
public:
    X11Panels(std::shared_ptr<X11Windows> windows, std::shared_ptr<X11Monitors> monitors,
              std::shared_ptr<X11Connection> connection);

    void prepare(quintptr window, Kind kind) override;
    void reserve(quintptr window, Qt::Edge edge, const QRect& display, const QRect& area) override;
    void setInputRegion(quintptr window, const QRegion& region) override;
    void setBlurRegion(quintptr window, const QRegion& region) override;
    void activate(quintptr window) override;
    bool hasTransparency() const override { return m_compositor.window() != XCB_WINDOW_NONE; }
    bool canBlur() const override { return m_knowsBlur && hasTransparency(); }

private:
    struct Panel {
        Kind kind{};
        bool isMapped{};
        bool isToBeActivated{}; ///< as soon as it is mapped
    };

    void handle(const xcb_generic_event_t& event);
    bool readBlur();
    xcb_atom_t typeOf(Kind kind) const;
    void setUp(xcb_window_t window, const Panel& panel);
    void setUpStates(xcb_window_t window, Kind kind);
    void keepEverywhere(xcb_window_t window, const Panel& panel);
    void refuseFocus(xcb_window_t window);
    void handleMapped(xcb_window_t window, Panel& panel);
    void bringToFront(xcb_window_t window);
    void stackCards();
    xcb_window_t frameOf(xcb_window_t window) const;

    std::shared_ptr<X11Windows> m_windows;
    std::shared_ptr<X11Monitors> m_monitors;
    std::shared_ptr<X11Connection> m_connection;
    X11Requests m_requests;
    SelectionOwner m_compositor;
    bool m_knowsShapes{};
    bool m_knowsBlur{};
    QHash<xcb_window_t, Panel> m_panels;
};

} // namespace fendrel
