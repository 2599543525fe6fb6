#include "Platform/Linux/X11/X11Connection.h"
#include "Platform/MakePlatform.h"

#include <QString>

#include <xcb/randr.h>

#include <memory>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

using Connection = std::unique_ptr<xcb_connection_t, decltype([](xcb_connection_t* each) { xcb_disconnect(each); })>;

bool hasExtension(xcb_connection_t* connection, QByteArrayView name) {
    const auto cookie = xcb_query_extension(connection, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbPointer<xcb_query_extension_reply_t> answer(xcb_query_extension_reply(connection, cookie, nullptr));
    return answer && answer->present != 0;
}

/// Older servers of this kind do not say what they are, but name their outputs after themselves.
bool hasWaylandOutputs(xcb_connection_t* connection) {
    if (!hasExtension(connection, "RANDR"))
        return false;
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const XcbPointer<xcb_randr_get_screen_resources_current_reply_t> resources(
        xcb_randr_get_screen_resources_current_reply(
            connection, xcb_randr_get_screen_resources_current(connection, root), nullptr));
    if (!resources)
        return false;
    const auto* outputs = xcb_randr_get_screen_resources_current_outputs(resources.get());
    for (int index = 0; index < xcb_randr_get_screen_resources_current_outputs_length(resources.get()); ++index) {
        const XcbPointer<xcb_randr_get_output_info_reply_t> info(xcb_randr_get_output_info_reply(
            connection, xcb_randr_get_output_info(connection, outputs[index], XCB_CURRENT_TIME), nullptr));
        if (info && QByteArrayView(xcb_randr_get_output_info_name(info.get()),
                                   xcb_randr_get_output_info_name_length(info.get()))
                        .startsWith("XWAYLAND"))
            return true;
    }
    return false;
}

} // namespace

std::optional<QString> missingRequirement() {
    const QString inWayland = u"This is a Wayland session, in which Fendrel cannot see other applications' windows. "
                              "Choose an X11 session (often named “Xorg”) when you log in."_s;
    const QString display = qEnvironmentVariable("DISPLAY");
    if (display.isEmpty() && qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return inWayland;
    if (display.isEmpty())
        return u"Fendrel needs a graphical session with an X server, but DISPLAY is not set."_s;
    const Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        return u"Fendrel cannot open the display “%1”: no X server answers there, or it refuses the connection."_s.arg(
            display);
    if (hasExtension(connection.get(), "XWAYLAND") || hasWaylandOutputs(connection.get()))
        return inWayland;
    return {};
}

} // namespace fendrel
