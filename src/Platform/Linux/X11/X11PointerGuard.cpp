#include "Platform/Linux/X11/X11PointerGuard.h"

#include <xcb/xfixes.h>

namespace fendrel {

bool X11PointerGuard::isAvailable() const {
    constexpr std::uint32_t firstWithBarriers = 5;
    if (!m_connection->firstEvent(xcb_xfixes_id))
        return false;
    const auto version = m_connection->reply<xcb_xfixes_query_version_reply>(
        xcb_xfixes_query_version(m_connection->xcb(), firstWithBarriers, 0));
    return version && version->major_version >= firstWithBarriers;
}

} // namespace fendrel
