#include "Platform/MakePlatform.h"

#include <QtGlobal>

#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace fendrel {

namespace {

/// Whether the X server draws with a graphics card, and lets its clients do so. This machine's having one says nothing:
/// remote and virtual displays do not use it.
bool serverHasGraphicsCard() {
    constexpr std::array<std::string_view, 2> extensions{"DRI3", "NV-GLX"};
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> xcb(xcb_connect(nullptr, nullptr),
                                                                           &xcb_disconnect);
    std::array<xcb_query_extension_cookie_t, extensions.size()> cookies{};
    std::ranges::transform(extensions, cookies.begin(), [&](std::string_view name) {
        return xcb_query_extension(xcb.get(), static_cast<std::uint16_t>(name.size()), name.data());
    });
    return std::ranges::any_of(cookies, [&](xcb_query_extension_cookie_t cookie) {
        // NOLINTNEXTLINE(cppcoreguidelines-no-malloc): the library's own allocation
        const std::unique_ptr<xcb_query_extension_reply_t, decltype(&std::free)> reply(
            xcb_query_extension_reply(xcb.get(), cookie, nullptr), &std::free);
        return reply && reply->present != 0;
    });
}

} // namespace

void prepareToolkit() {
    // The X11 protocol is what the adapters here speak, also where the session offers another.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    // Drawing OpenGL without a graphics card costs more memory and time than Qt Quick's own software renderer.
    const bool isChosen = qEnvironmentVariableIsSet("QT_QUICK_BACKEND") || qEnvironmentVariableIsSet("QSG_RHI_BACKEND");
    if (!isChosen && !serverHasGraphicsCard())
        qputenv("QT_QUICK_BACKEND", "software");
}

} // namespace fendrel
