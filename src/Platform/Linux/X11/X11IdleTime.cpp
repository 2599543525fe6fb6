#include "Platform/Linux/X11/X11IdleTime.h"

#include <xcb/screensaver.h>

namespace fendrel {

X11IdleTime::X11IdleTime(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)), m_isSupported(m_connection->firstEvent(xcb_screensaver_id).has_value()) {}

std::optional<std::chrono::milliseconds> X11IdleTime::sinceLastInput() const {
    if (!m_isSupported)
        return {};
    const auto answer = m_connection->reply<xcb_screensaver_query_info_reply>(
        xcb_screensaver_query_info(m_connection->xcb(), m_connection->root()));
    return answer ? std::optional(std::chrono::milliseconds(answer->ms_since_user_input)) : std::nullopt;
}

} // namespace fendrel
