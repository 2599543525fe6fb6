#include "Platform/Linux/X11/EdgeWatch.h"

#include "Platform/Linux/X11/PointerBarriers.h"
#include "Platform/Linux/X11/X11Connection.h"

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <xcb/xfixes.h>
#include <xcb/xinput.h>

#include <array>
#include <cmath>

namespace fendrel {

std::unique_ptr<EdgeWatch> EdgeWatch::start(const QList<GuardedEdge>& edges) {
    std::unique_ptr<EdgeWatch> watch(new EdgeWatch);
    if (!watch->m_wakeUp || xcb_connection_has_error(watch->m_xcb.get()) != 0 || !watch->hasExtensions() ||
        !watch->listen())
        return {};
    watch->m_isRunning = true;
    watch->m_thread = std::thread([self = watch.get()] {
        pthread_setname_np(pthread_self(), "Fendrel edge gu"); // 15 letters are what the kernel keeps
        self->run();
    });
    watch->setEdges(edges);
    return watch;
}

EdgeWatch::EdgeWatch() : m_wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    int screenNumber = 0;
    m_xcb.reset(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(m_xcb.get()) != 0)
        return;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_xcb.get()));
    for (; screens.rem > 1 && screenNumber > 0; --screenNumber)
        xcb_screen_next(&screens);
    m_root = screens.data->root;
}

EdgeWatch::~EdgeWatch() {
    m_isEnding = true;
    wake();
    if (m_thread.joinable())
        m_thread.join();
}

bool EdgeWatch::hasExtensions() const {
    auto* xcb = m_xcb.get();
    const auto isPresent = [&](xcb_extension_t& extension) {
        const auto* data = xcb_get_extension_data(xcb, &extension);
        return data != nullptr && data->present != 0;
    };
    if (!isPresent(xcb_xfixes_id) || !isPresent(xcb_input_id))
        return false;
    const auto barriers = xcb_xfixes_query_version(xcb, 5, 0);
    const auto motions = xcb_input_xi_query_version(xcb, 2, 2);
    const XcbPointer<xcb_xfixes_query_version_reply_t> fixes(xcb_xfixes_query_version_reply(xcb, barriers, nullptr));
    const XcbPointer<xcb_input_xi_query_version_reply_t> input(xcb_input_xi_query_version_reply(xcb, motions, nullptr));
    // From 2.1 on motions are told also while another program holds the pointer, as it does during a drag.
    return fixes && fixes->major_version >= 5 && input &&
           (input->major_version > 2 || (input->major_version == 2 && input->minor_version >= 2));
}

bool EdgeWatch::listen() const {
    struct {
        xcb_input_event_mask_t head{.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1};
        std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    } const wanted;
    const auto cookie = xcb_input_xi_select_events_checked(m_xcb.get(), m_root, 1, &wanted.head);
    return !XcbPointer<xcb_generic_error_t>(xcb_request_check(m_xcb.get(), cookie));
}

void EdgeWatch::setEdges(const QList<GuardedEdge>& edges) {
    {
        const std::lock_guard lock(m_mutex);
        if (m_edges == edges)
            return;
        m_edges = edges;
    }
    placeBarriers(edges);
    wake(); // the pointer may be at one of them
}

void EdgeWatch::placeBarriers(const QList<GuardedEdge>& edges) {
    auto* xcb = m_xcb.get();
    for (const std::uint32_t barrier : std::as_const(m_barriers))
        xcb_xfixes_delete_pointer_barrier(xcb, barrier);
    m_barriers.clear();
    const auto coordinate = [](int value) { return static_cast<std::uint16_t>(std::max(0, value)); };
    for (const auto& [from, to, permitted] : barriersFor(edges)) {
        m_barriers.append(xcb_generate_id(xcb));
        xcb_xfixes_create_pointer_barrier(xcb, m_barriers.last(), m_root, coordinate(from.x()), coordinate(from.y()),
                                          coordinate(to.x()), coordinate(to.y()), permitted, 0, nullptr);
    }
    xcb_flush(xcb);
}

void EdgeWatch::wake() const {
    if (m_wakeUp)
        eventfd_write(m_wakeUp.get(), 1);
}

void EdgeWatch::run() {
    std::array<pollfd, 2> sources{pollfd{.fd = xcb_get_file_descriptor(m_xcb.get()), .events = POLLIN, .revents = 0},
                                  pollfd{.fd = m_wakeUp.get(), .events = POLLIN, .revents = 0}};
    while (!m_isEnding && xcb_connection_has_error(m_xcb.get()) == 0) {
        // However many motions were told, the pointer is at one place now. More may have come in with its answer.
        bool hasMoved = false;
        while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb.get())})
            hasMoved = true;
        eventfd_t wakeUps = 0;
        if (eventfd_read(m_wakeUp.get(), &wakeUps) == 0)
            hasMoved = true;
        if (hasMoved)
            hold();
        else
            poll(sources.data(), sources.size(), -1);
    }
    m_isRunning = false;
}

void EdgeWatch::hold() const {
    QList<GuardedEdge> edges;
    {
        const std::lock_guard lock(m_mutex);
        edges = m_edges;
    }
    auto* xcb = m_xcb.get();
    const XcbPointer<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(xcb, xcb_query_pointer(xcb, m_root), nullptr));
    if (!pointer || pointer->same_screen == 0)
        return;
    const auto held = heldPoint(QPointF(pointer->root_x, pointer->root_y), edges);
    if (!held)
        return;
    xcb_warp_pointer(xcb, XCB_WINDOW_NONE, m_root, 0, 0, 0, 0, static_cast<std::int16_t>(std::lround(held->x())),
                     static_cast<std::int16_t>(std::lround(held->y())));
    xcb_flush(xcb);
}

} // namespace fendrel
