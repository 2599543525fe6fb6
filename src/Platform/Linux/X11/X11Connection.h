#pragma once

#include "Platform/Linux/X11/X11Atoms.h"
#include "Platform/Linux/X11/X11Property.h"
#include "Platform/Linux/X11/XcbPointer.h"
#include "Ports/Clock.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSocketNotifier>

#include <xcb/xcb.h>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace fendrel {

/// A connection to the X server beside the toolkit's own, so that neither side can take the other's events.
/// Main thread. It talks to the server only, never to other applications, so none of them can hold it up.
class X11Connection : public QObject {
    Q_OBJECT
public:
    /// Connects to $DISPLAY. Nothing when it cannot be reached.
    static std::shared_ptr<X11Connection> open(Clock& clock);
    ~X11Connection() override;

    xcb_connection_t* xcb() const { return m_xcb.get(); }
    xcb_window_t root() const { return m_screen->root; }
    xcb_window_t ownWindow() const { return m_ownWindow; } ///< never shown
    int screenNumber() const { return m_screenNumber; }
    const X11Atoms& atoms() const { return m_atoms; }
    xcb_atom_t atom(const QByteArray& name);

    /// The first event number of an extension; nothing when the server lacks the extension.
    std::optional<std::uint8_t> firstEvent(xcb_extension_t& extension);

    /// Waits for a reply: `reply<xcb_get_property_reply>(xcb_get_property(...))`. Nothing when the request failed,
    /// which is normal for windows: they vanish at any moment.
    template<auto fetch, class Cookie>
    auto reply(Cookie cookie) {
        xcb_generic_error_t* error = nullptr;
        auto* answer = fetch(xcb(), cookie, &error);
        const XcbPointer<xcb_generic_error_t> owned(error);
        if (error != nullptr)
            note(*error);
        // Events that came in with the reply sit in memory, where the socket no longer announces them.
        drainSoon();
        return XcbPointer<std::remove_pointer_t<decltype(answer)>>(answer);
    }

    /// Waits until the server has done what has no reply. False when it refused, which is not logged.
    bool check(xcb_void_cookie_t cookie);

    xcb_get_property_cookie_t ask(xcb_window_t window, xcb_atom_t property) const;
    X11Property answer(xcb_get_property_cookie_t cookie);
    X11Property property(xcb_window_t window, xcb_atom_t property) { return answer(ask(window, property)); }
    void setNumbers(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, const QList<quint32>& values);

    /// Asks the window manager for something about `window`.
    void sendToWindowManager(xcb_window_t window, xcb_atom_t type, const std::array<quint32, 5>& data);

    /// Listens to `mask` on a window, in place of what was listened to there.
    void select(xcb_window_t window, std::uint32_t mask);

    /// Hands over the server's present time, which only an event tells. `run` is dropped with the connection.
    void withServerTime(std::function<void(xcb_timestamp_t)> run);

    /// Hands over a request's reply when it is here; nothing waits for it. Null when the request failed. `run` is
    /// dropped with the connection.
    void whenReplied(unsigned int sequence, std::function<void(XcbPointer<void> reply)> run);

    void flush() { xcb_flush(xcb()); }

Q_SIGNALS:
    void eventReceived(const xcb_generic_event_t& event);

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    using Connected = std::unique_ptr<xcb_connection_t, Disconnect>;

    X11Connection(Connected connection, int screenNumber, Clock& clock);
    void internAtoms();
    void drain();
    void drainSoon();
    void handOverReplies();
    void dispatch(const xcb_generic_event_t& event);
    void note(const xcb_generic_error_t& error);

    Clock& m_clock;
    Connected m_xcb;
    int m_screenNumber{};
    const xcb_screen_t* m_screen{};
    xcb_window_t m_ownWindow{};
    X11Atoms m_atoms{};
    std::unique_ptr<QSocketNotifier> m_notifier;
    QList<std::function<void(xcb_timestamp_t)>> m_awaitingTime;
    QList<std::pair<unsigned int, std::function<void(XcbPointer<void>)>>> m_awaitingReply; ///< in the order of asking
    QHash<std::pair<int, int>, ContinuousTime> m_lastNoted; ///< error and request codes -> when it was logged
    bool m_isDrainQueued{};
};

} // namespace fendrel
