#include "Platform/Linux/X11/X11Windows.h"

#include "Base/Log.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>

namespace fendrel {

using namespace std::chrono_literals;

namespace {

// Longer than any window manager takes between two windows, shorter than what a person calls waiting.
constexpr auto betweenWindows = 150ms;

// A window manager that is told to end lets go of every window first, and only then says that it ends.
constexpr auto managerLeaves = 300ms;
constexpr auto managerSettles = 1s;

constexpr std::uint32_t windowEvents = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

} // namespace

X11Windows::X11Windows(std::shared_ptr<X11Connection> connection, Clock& clock)
    : m_connection(std::move(connection)), m_clock(clock), m_reader(*m_connection) {
    connect(m_connection.get(), &X11Connection::eventReceived, this, &X11Windows::handle);
    readCurrentDesktop();
    readManager();
    std::ranges::stable_sort(m_recent, [order = stacking()](xcb_window_t left, xcb_window_t right) {
        return order.indexOf(left) > order.indexOf(right);
    });
    readActive();
}

const X11Window* X11Windows::find(xcb_window_t id) const {
    const auto found = std::ranges::find(m_windows, id, &X11Window::id);
    return found == m_windows.end() ? nullptr : &*found;
}

std::optional<QRect> X11Windows::frame(xcb_window_t id) const {
    if (const auto known = m_frames.constFind(id); known != m_frames.constEnd())
        return *known;
    const auto frame = m_reader.frame(id);
    if (frame && find(id) != nullptr)
        m_frames.insert(id, *frame);
    return frame;
}

QList<xcb_window_t> X11Windows::stacking() const {
    return m_connection->property(m_connection->root(), m_connection->atoms().netClientListStacking).numbers();
}

QList<Strut> X11Windows::struts() const {
    QList<Strut> struts;
    for (const X11Window& window : m_windows) {
        const bool isHere = !window.desktop || *window.desktop == m_currentDesktop;
        if (window.strut && isHere && !window.isMinimized && window.pid != QCoreApplication::applicationPid())
            struts.append(*window.strut);
    }
    return struts;
}

void X11Windows::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7f) {
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == m_connection->root())
            handleRootProperty(change.atom);
        else
            handleWindowProperty(change.window, change.atom);
        break;
    }
    case XCB_DESTROY_NOTIFY:
        handleDestroyed(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    case XCB_CONFIGURE_NOTIFY: {
        const auto window = reinterpret_cast<const xcb_configure_notify_event_t&>(event).window;
        m_frames.remove(window);
        Q_EMIT frameChanged(window);
        break;
    }
    case XCB_REPARENT_NOTIFY:
        m_frames.remove(reinterpret_cast<const xcb_reparent_notify_event_t&>(event).window);
        break;
    default:
        break;
    }
}

void X11Windows::handleRootProperty(xcb_atom_t property) {
    const auto& atoms = m_connection->atoms();
    if (property == atoms.netActiveWindow)
        readActive();
    else if (property == atoms.netClientList)
        readClients();
    else if (property == atoms.netClientListStacking)
        Q_EMIT stackingChanged();
    else if (property == atoms.netCurrentDesktop)
        readCurrentDesktop();
    else if (property == atoms.netSupportingWmCheck || property == atoms.netSupported)
        readManager();
}

void X11Windows::handleWindowProperty(xcb_window_t id, xcb_atom_t property) {
    if (find(id) == nullptr)
        return;
    const auto& atoms = m_connection->atoms();
    if (property == atoms.netFrameExtents || property == atoms.gtkFrameExtents)
        m_frames.remove(id);
    if (property == atoms.netWmIcon)
        Q_EMIT iconChanged(id);
    update(id, property);
}

void X11Windows::update(xcb_window_t id, xcb_atom_t property) {
    const auto found = std::ranges::find(m_windows, id, &X11Window::id);
    if (found == m_windows.end())
        return;
    const X11Window before = *found;
    m_reader.update(*found, property);
    // Some applications go on calling the user who is there.
    if (id == m_active)
        found->demandsAttention = found->isUrgent = false;
    // A copy goes out: who is told may make us read the list of windows anew.
    if (const X11Window now = *found; now != before)
        Q_EMIT windowChanged(now, before);
}

void X11Windows::handleDestroyed(xcb_window_t id) {
    if (id == m_manager) {
        qCInfo(logDesktop) << "The window manager ended";
        m_manager = XCB_WINDOW_NONE;
        m_isSettling = true;
        return;
    }
    if (find(id) != nullptr)
        remove({id});
}

void X11Windows::readManager() {
    // The property outlives a window manager that crashed. Only a window that names itself is alive.
    const auto check = m_connection->atoms().netSupportingWmCheck;
    const auto named = m_connection->property(m_connection->root(), check).number().value_or(XCB_WINDOW_NONE);
    if (named == XCB_WINDOW_NONE)
        return;
    m_connection->select(named, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    if (m_connection->property(named, check).number() != named)
        return;
    m_reader.setSupported(m_connection->property(m_connection->root(), m_connection->atoms().netSupported).numbers());
    if (std::exchange(m_manager, named) != named && m_isSettling) {
        // It shows the windows that it finds one by one. They were there all the time.
        m_managerSettles = m_clock.after(managerSettles, [this] {
            m_isSettling = false;
            readClients();
            removeUnmanaged();
            readActive();
        });
    }
    readClients();
}

void X11Windows::readClients() {
    const auto list = m_connection->property(m_connection->root(), m_connection->atoms().netClientList);
    if (m_manager == XCB_WINDOW_NONE || list.format == 0)
        return;
    const auto ids = list.numbers();
    const bool isShorter =
        std::ranges::any_of(m_windows, [&](const X11Window& window) { return !ids.contains(window.id); });
    if (isShorter && !m_departure)
        m_departure = m_clock.after(managerLeaves, [this] { removeUnmanaged(); });
    bool isLonger = false;
    for (const xcb_window_t id : ids) {
        if (find(id) != nullptr)
            continue;
        m_connection->select(id, windowEvents); // before reading, so that no change falls in between
        m_windows.append(m_reader.read(id));
        m_recent.append(id);
        isLonger = true;
    }
    if (!isLonger)
        return;
    Q_EMIT listChanged();
    readActive(); // the new window may have been active before it was listed
}

void X11Windows::removeUnmanaged() {
    m_departure.reset();
    const auto list = m_connection->property(m_connection->root(), m_connection->atoms().netClientList);
    if (m_isSettling || list.format == 0)
        return;
    const auto managed = list.numbers();
    QList<xcb_window_t> unmanaged;
    for (const X11Window& window : m_windows) {
        if (!managed.contains(window.id))
            unmanaged.append(window.id);
    }
    if (!unmanaged.isEmpty())
        remove(unmanaged);
}

void X11Windows::remove(const QList<xcb_window_t>& ids) {
    m_windows.removeIf([&](const X11Window& window) { return ids.contains(window.id); });
    m_recent.removeIf([&](xcb_window_t id) { return ids.contains(id); });
    for (const xcb_window_t id : ids)
        m_frames.remove(id);
    Q_EMIT listChanged();
    if (ids.contains(m_active))
        readActive();
}

void X11Windows::readActive() {
    const auto id = m_connection->property(m_connection->root(), m_connection->atoms().netActiveWindow)
                        .number()
                        .value_or(XCB_WINDOW_NONE);
    if (find(id) != nullptr) {
        m_inactivity.reset();
        setActive(id);
        return;
    }
    if (m_active == XCB_WINDOW_NONE || m_inactivity)
        return;
    m_inactivity = m_clock.after(betweenWindows, [this] {
        m_inactivity.reset();
        if (!m_isSettling || find(m_active) == nullptr)
            setActive(XCB_WINDOW_NONE);
    });
}

void X11Windows::setActive(xcb_window_t id) {
    if (id != XCB_WINDOW_NONE) {
        m_recent.removeOne(id);
        m_recent.prepend(id);
    }
    if (std::exchange(m_active, id) == id)
        return;
    Q_EMIT activeChanged();
    update(id, XCB_ATOM_NONE); // nobody has to be called to where they are
}

void X11Windows::readCurrentDesktop() {
    const auto desktop =
        m_connection->property(m_connection->root(), m_connection->atoms().netCurrentDesktop).number().value_or(0);
    if (std::exchange(m_currentDesktop, desktop) != desktop)
        Q_EMIT currentDesktopChanged();
}

} // namespace fendrel
