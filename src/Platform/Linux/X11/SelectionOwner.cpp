#include "Platform/Linux/X11/SelectionOwner.h"

#include <xcb/xfixes.h>

namespace fendrel {

SelectionOwner::SelectionOwner(std::shared_ptr<X11Connection> connection, const QByteArray& selection)
    : m_connection(std::move(connection)),
      m_selection(m_connection->atom(selection)),
      m_firstEvent(m_connection->firstEvent(xcb_xfixes_id)) {
    auto* xcb = m_connection->xcb();
    if (m_firstEvent) {
        // The server wants to hear the version before anything else of the extension.
        m_connection->reply<xcb_xfixes_query_version_reply>(
            xcb_xfixes_query_version(xcb, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION));
        xcb_xfixes_select_selection_input(xcb, m_connection->root(), m_selection,
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
        connect(m_connection.get(), &X11Connection::eventReceived, this, &SelectionOwner::handle);
    }
    const auto owner = m_connection->reply<xcb_get_selection_owner_reply>(xcb_get_selection_owner(xcb, m_selection));
    m_window = owner ? owner->owner : xcb_window_t{XCB_WINDOW_NONE};
}

void SelectionOwner::handle(const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7f) != *m_firstEvent + XCB_XFIXES_SELECTION_NOTIFY)
        return;
    const auto& notice = reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event);
    if (notice.selection != m_selection)
        return;
    const bool isOwned = notice.subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER;
    const xcb_window_t owner = isOwned ? notice.owner : xcb_window_t{XCB_WINDOW_NONE};
    if (std::exchange(m_window, owner) != owner)
        onChanged();
}

} // namespace fendrel
