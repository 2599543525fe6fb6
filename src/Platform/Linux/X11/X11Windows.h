#pragma once

#include "Base/Handle.h"
#include "Platform/Linux/X11/X11Connection.h"
#include "Platform/Linux/X11/X11Window.h"
#include "Platform/Linux/X11/X11WindowReader.h"

#include <QHash>
#include <QList>
#include <QObject>

#include <memory>
#include <optional>

namespace fendrel {

/// The windows that the window manager manages, kept up to date by the server's events. Main thread.
class X11Windows : public QObject {
    Q_OBJECT
public:
    X11Windows(std::shared_ptr<X11Connection> connection, Clock& clock);

    X11Connection& connection() const { return *m_connection; }
    const QList<X11Window>& all() const { return m_windows; } ///< oldest first
    const X11Window* find(xcb_window_t id) const;

    /// The window with the keyboard. While the window manager hands the keyboard from one window to another there is
    /// none for a moment; that moment does not show here.
    xcb_window_t active() const { return m_active; }
    const QList<xcb_window_t>& byRecency() const { return m_recent; } ///< the last active one first

    bool hasManager() const { return m_manager != XCB_WINDOW_NONE; }
    std::optional<QRect> frame(xcb_window_t id) const;
    quint32 currentDesktop() const { return m_currentDesktop; }
    QSize desktopSize() const { return m_reader.desktopSize(); }
    /// The lowest first, as the window manager tells. Asks the server.
    QList<xcb_window_t> stacking() const;
    QList<Strut> struts() const; ///< of other programs' panels on the current desktop

Q_SIGNALS:
    void listChanged();
    void windowChanged(const X11Window& now, const X11Window& before);
    void iconChanged(xcb_window_t id);
    void activeChanged();
    void currentDesktopChanged();
    void stackingChanged();             ///< who covers whom
    void frameChanged(xcb_window_t id); ///< moved, or of another size

private:
    void handle(const xcb_generic_event_t& event);
    void handleRootProperty(xcb_atom_t property);
    void handleWindowProperty(xcb_window_t id, xcb_atom_t property);
    void handleDestroyed(xcb_window_t id);
    void readManager();
    void readClients();
    void readActive();
    void setActive(xcb_window_t id);
    void update(xcb_window_t id, xcb_atom_t property);
    void readCurrentDesktop();
    void removeUnmanaged();
    void remove(const QList<xcb_window_t>& ids);

    std::shared_ptr<X11Connection> m_connection;
    Clock& m_clock;
    X11WindowReader m_reader;
    QList<X11Window> m_windows;
    QList<xcb_window_t> m_recent;
    mutable QHash<xcb_window_t, QRect> m_frames; ///< those that did not move since they were asked for
    xcb_window_t m_manager{};                    ///< the window by which the window manager shows that it lives
    xcb_window_t m_active{};
    quint32 m_currentDesktop{};
    std::optional<Handle> m_inactivity; ///< here while a window was active just now and none is
    std::optional<Handle> m_departure;  ///< here while a window that still exists is not listed any more
    Handle m_managerSettles;
    bool m_isSettling{}; ///< a window manager ended, or its successor takes over the windows that are there
};

} // namespace fendrel
