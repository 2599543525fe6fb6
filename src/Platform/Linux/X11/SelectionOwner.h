#pragma once

#include "Platform/Linux/X11/X11Connection.h"

#include <QObject>

#include <functional>
#include <memory>

namespace fendrel {

/// Follows who owns a selection of the X server: that is how compositors and settings daemons show that they run.
/// Main thread. On a server without XFixes it knows the owner of the beginning only.
class SelectionOwner : public QObject {
    Q_OBJECT
public:
    SelectionOwner(std::shared_ptr<X11Connection> connection, const QByteArray& selection);

    xcb_window_t window() const { return m_window; } ///< none when nobody owns it

    std::function<void()> onChanged = [] {};

private:
    void handle(const xcb_generic_event_t& event);

    std::shared_ptr<X11Connection> m_connection;
    xcb_atom_t m_selection{};
    std::optional<std::uint8_t> m_firstEvent;
    xcb_window_t m_window{};
};

} // namespace fendrel
