#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

/// The least that a program can do to change other programs' windows and to hear of it. Throws when the server
/// is gone.
class BareClient {
public:
    BareClient() : m_xcb(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_xcb.get()) != 0)
            throw std::runtime_error("the X server cannot be reached");
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_xcb.get())).data->root;
        m_name = atom("_NET_WM_NAME");
        m_text = atom("UTF8_STRING");
        m_active = atom("_NET_ACTIVE_WINDOW");
        listen(m_root);
    }

    void listen(xcb_window_t window) {
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_xcb.get(), window, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_xcb.get());
    }

    /// Forgets what it heard so far.
    void skipPending() {
        active(); // with the answer comes all that the server had to tell before
        while (Owned<xcb_generic_event_t>(xcb_poll_for_event(m_xcb.get()))) {
        }
    }

    void setTitle(xcb_window_t window, const std::string& title) {
        xcb_change_property(m_xcb.get(), XCB_PROP_MODE_REPLACE, window, m_name, m_text, 8,
                            static_cast<std::uint32_t>(title.size()), title.data());
        xcb_flush(m_xcb.get());
    }

    void waitForTitle(xcb_window_t window) { waitFor(window, m_name); }

    /// Asks the window manager as a task bar does.
    void activate(xcb_window_t window) {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = window;
        event.type = m_active;
        event.data.data32[0] = 2;
        std::array<char, sizeof event> bytes{};
        std::memcpy(bytes.data(), &event, bytes.size());
        xcb_send_event(m_xcb.get(), 0, m_root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, bytes.data());
        xcb_flush(m_xcb.get());
    }

    void waitForActive(xcb_window_t window) {
        do {
            waitFor(m_root, m_active);
        } while (active() != window);
    }

private:
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    template<class Type>
    using Owned = std::unique_ptr<Type, Free>;

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_atom_t atom(std::string_view name) {
        const auto cookie = xcb_intern_atom(m_xcb.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
        const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_xcb.get(), cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    xcb_window_t active() {
        const auto cookie = xcb_get_property(m_xcb.get(), 0, m_root, m_active, XCB_ATOM_WINDOW, 0, 1);
        const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_xcb.get(), cookie, nullptr));
        if (!reply || xcb_get_property_value_length(reply.get()) == 0)
            return XCB_WINDOW_NONE;
        return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    }

    void waitFor(xcb_window_t window, xcb_atom_t property) {
        for (;;) {
            const Owned<xcb_generic_event_t> event(xcb_wait_for_event(m_xcb.get()));
            if (!event)
                throw std::runtime_error("the X server went away");
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
            if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && change.window == window &&
                change.atom == property)
                return;
        }
    }

    std::unique_ptr<xcb_connection_t, Disconnect> m_xcb;
    xcb_window_t m_root{};
    xcb_atom_t m_name{};
    xcb_atom_t m_text{};
    xcb_atom_t m_active{};
};
