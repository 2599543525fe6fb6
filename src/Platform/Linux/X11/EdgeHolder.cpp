#include "Platform/Linux/X11/EdgeHolder.h"

#include "Platform/Linux/X11/PointerBarriers.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <xcb/xcbext.h>
#include <xcb/xfixes.h>
#include <xcb/xinput.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace fendrel {

namespace {

void select(xcb_connection_t* xcb, xcb_window_t root, std::uint16_t device, std::uint32_t events) {
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } const wanted{.head = {.deviceid = device, .mask_len = 1}, .mask = events};
    xcb_input_xi_select_events(xcb, root, 1, &wanted.head);
}

bool hasAbsoluteAxis(const xcb_input_xi_device_info_t& device) {
    auto classes = xcb_input_xi_device_info_classes_iterator(&device);
    for (; classes.rem > 0; xcb_input_device_class_next(&classes)) {
        if (classes.data->type != XCB_INPUT_DEVICE_CLASS_TYPE_VALUATOR)
            continue;
        const auto* axis = reinterpret_cast<const xcb_input_valuator_class_t*>(classes.data);
        if (axis->mode == XCB_INPUT_VALUATOR_MODE_ABSOLUTE)
            return true;
    }
    return false;
}

} // namespace

void EdgeHolder::run() {
    const bool hasBegun = begin();
    m_orders.isBound = true;
    if (!hasBegun || !hasExtensions())
        return;
    bool areDevicesNew = false;
    while (!isOver()) {
        // However many motions were told, the pointer is at one place now. More may have come in with its answer.
        bool hasMoved = false;
        while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb.get())}) {
            const auto* told = reinterpret_cast<const xcb_ge_generic_event_t*>(event.get());
            const bool isInput = (event->response_type & 0x7f) == XCB_GE_GENERIC && told->extension == m_inputOpcode;
            areDevicesNew |= isInput && told->event_type == XCB_INPUT_HIERARCHY;
            hasMoved |= isInput && told->event_type == XCB_INPUT_RAW_MOTION;
        }
        const bool areEdgesNew = std::exchange(m_wasWoken, false) && takeOrders();
        if (areEdgesNew)
            placeBarriers();
        if (areEdgesNew || std::exchange(areDevicesNew, false))
            listen();
        if (areEdgesNew || hasMoved) // the pointer may be at one of the new ones
            hold();
        else
            sleep();
    }
}

bool EdgeHolder::begin() {
    int screenNumber = 0;
    m_xcb.reset(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(m_xcb.get()) != 0)
        return false;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_xcb.get()));
    for (; screens.rem > 1 && screenNumber > 0; --screenNumber)
        xcb_screen_next(&screens);
    m_root = screens.data->root;
    return true;
}

bool EdgeHolder::hasExtensions() {
    auto* xcb = m_xcb.get();
    constexpr std::string_view node = "Device Node";
    xcb_prefetch_extension_data(xcb, &xcb_xfixes_id);
    xcb_prefetch_extension_data(xcb, &xcb_input_id);
    // Known once something that was asked for later is answered; before that, the library would wait.
    const auto atom = await<xcb_intern_atom_reply_t>(xcb_intern_atom(xcb, 1, node.size(), node.data()).sequence);
    if (!atom)
        return false;
    m_deviceNode = atom->atom;
    const auto* fixes = xcb_get_extension_data(xcb, &xcb_xfixes_id);
    const auto* input = xcb_get_extension_data(xcb, &xcb_input_id);
    if (fixes == nullptr || fixes->present == 0 || input == nullptr || input->present == 0)
        return false;
    m_inputOpcode = input->major_opcode;
    const auto barriers = xcb_xfixes_query_version(xcb, 5, 0);
    const auto motions = xcb_input_xi_query_version(xcb, 2, 2);
    const auto fixesVersion = await<xcb_xfixes_query_version_reply_t>(barriers.sequence);
    const auto inputVersion = await<xcb_input_xi_query_version_reply_t>(motions.sequence);
    if (!fixesVersion || fixesVersion->major_version < 5 || !inputVersion)
        return false;
    // From 2.1 on motions are told also while another program holds the pointer, as it does during a drag.
    const std::pair version(inputVersion->major_version, inputVersion->minor_version);
    if (version < std::pair<std::uint16_t, std::uint16_t>(2, 2))
        return false;
    select(xcb, m_root, XCB_INPUT_DEVICE_ALL, XCB_INPUT_XI_EVENT_MASK_HIERARCHY);
    return true;
}

bool EdgeHolder::isOver() const {
    return m_orders.isEnding || xcb_connection_has_error(m_xcb.get()) != 0;
}

void EdgeHolder::sleep() {
    xcb_flush(m_xcb.get());
    std::array<pollfd, 2> sources{pollfd{.fd = xcb_get_file_descriptor(m_xcb.get()), .events = POLLIN, .revents = 0},
                                  pollfd{.fd = m_orders.wakeUp.get(), .events = POLLIN, .revents = 0}};
    poll(sources.data(), sources.size(), -1);
    eventfd_t wakeUps = 0;
    m_wasWoken |= eventfd_read(m_orders.wakeUp.get(), &wakeUps) == 0;
}

void* EdgeHolder::awaitAny(unsigned int sequence) {
    while (!isOver()) {
        void* reply = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (xcb_poll_for_reply(m_xcb.get(), sequence, &reply, &error) != 0) {
            const XcbPointer<xcb_generic_error_t> owned(error);
            return reply;
        }
        sleep();
    }
    return nullptr;
}

/// True when they say something new.
bool EdgeHolder::takeOrders() {
    const std::lock_guard lock(m_orders.mutex);
    if (m_edges == m_orders.edges)
        return false;
    m_edges = m_orders.edges;
    return true;
}

void EdgeHolder::placeBarriers() {
    auto* xcb = m_xcb.get();
    for (const std::uint32_t barrier : std::as_const(m_barriers))
        xcb_xfixes_delete_pointer_barrier(xcb, barrier);
    m_barriers.clear();
    const auto coordinate = [](int value) { return static_cast<std::uint16_t>(std::max(0, value)); };
    for (const auto& [from, to, permitted] : barriersFor(m_edges)) {
        m_barriers.append(xcb_generate_id(xcb));
        xcb_xfixes_create_pointer_barrier(xcb, m_barriers.last(), m_root, coordinate(from.x()), coordinate(from.y()),
                                          coordinate(to.x()), coordinate(to.y()), permitted, 0, nullptr);
    }
    xcb_flush(xcb);
}

void EdgeHolder::listen() {
    const QList<std::uint16_t> wanted = m_edges.isEmpty() ? QList<std::uint16_t>() : placingDevices();
    for (const std::uint16_t device : std::as_const(m_heard)) {
        if (!wanted.contains(device))
            select(m_xcb.get(), m_root, device, 0);
    }
    for (const std::uint16_t device : wanted)
        select(m_xcb.get(), m_root, device, XCB_INPUT_XI_EVENT_MASK_RAW_MOTION);
    m_heard = wanted;
    xcb_flush(m_xcb.get());
}

/// Those that may put the pointer somewhere. A mouse's axes are all relative, but so are, by name, those of servers
/// that are operated from afar and of programs that play a mouse: only of what is plugged in that can be believed.
QList<std::uint16_t> EdgeHolder::placingDevices() {
    auto* xcb = m_xcb.get();
    QList<std::uint16_t> placing;
    const auto devices =
        await<xcb_input_xi_query_device_reply_t>(xcb_input_xi_query_device(xcb, XCB_INPUT_DEVICE_ALL).sequence);
    if (!devices)
        return placing;
    auto device = xcb_input_xi_query_device_infos_iterator(devices.get());
    for (; device.rem > 0; xcb_input_xi_device_info_next(&device)) {
        if (device.data->type != XCB_INPUT_DEVICE_TYPE_SLAVE_POINTER)
            continue;
        const std::uint16_t id = device.data->deviceid;
        if (hasAbsoluteAxis(*device.data) || !isPluggedIn(id))
            placing.append(id);
    }
    return placing;
}

bool EdgeHolder::isPluggedIn(std::uint16_t device) {
    if (m_deviceNode == XCB_ATOM_NONE)
        return false;
    const auto node = xcb_input_xi_get_property(m_xcb.get(), device, 0, m_deviceNode, XCB_ATOM_ANY, 0, 0);
    const auto answer = await<xcb_input_xi_get_property_reply_t>(node.sequence);
    return answer && answer->type != XCB_ATOM_NONE;
}

void EdgeHolder::hold() {
    const auto pointer = await<xcb_query_pointer_reply_t>(xcb_query_pointer(m_xcb.get(), m_root).sequence);
    if (!pointer || pointer->same_screen == 0)
        return;
    const auto held = heldPoint(QPointF(pointer->root_x, pointer->root_y), m_edges);
    if (!held)
        return;
    xcb_warp_pointer(m_xcb.get(), XCB_WINDOW_NONE, m_root, 0, 0, 0, 0,
                     static_cast<std::int16_t>(std::lround(held->x())),
                     static_cast<std::int16_t>(std::lround(held->y())));
    xcb_flush(m_xcb.get());
}

} // namespace fendrel
