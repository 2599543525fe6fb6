#include "Platform/Linux/X11/X11Panels.h"

#include <QGuiApplication>
#include <QPointer>
#include <QtGui/qguiapplication_platform.h>

#include <xcb/shape.h>

#include <algorithm>
#include <array>
#include <span>

namespace fendrel {

namespace {

constexpr quint32 everyDesktop = 0xFFFF'FFFF;

xcb_window_t native(quintptr window) {
    return static_cast<xcb_window_t>(window);
}

/// The toolkit makes its windows on a connection of its own. Until the server has heard of one, it does not exist for
/// us.
void awaitToolkit() {
    auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (native == nullptr)
        return;
    auto* toolkit = native->connection();
    const XcbPointer<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(toolkit, xcb_get_input_focus(toolkit), nullptr));
}

/// Whether the window manager has to do with such windows.
bool isManaged(Panels::Kind kind) {
    return kind == Panels::Kind::dock || kind == Panels::Kind::gate;
}

/// Above full-screen windows, where no window manager puts a panel.
bool isStackedByUs(Panels::Kind kind) {
    return kind == Panels::Kind::card || kind == Panels::Kind::glow;
}

} // namespace

X11Panels::X11Panels(std::shared_ptr<X11Windows> windows, std::shared_ptr<X11Monitors> monitors,
                     std::shared_ptr<X11Connection> connection)
    : m_windows(std::move(windows)),
      m_monitors(std::move(monitors)),
      m_connection(std::move(connection)),
      m_requests(*m_connection),
      m_compositor(m_connection, "_NET_WM_CM_S" + QByteArray::number(m_connection->screenNumber())),
      m_knowsShapes(m_connection->firstEvent(xcb_shape_id).has_value()) {
    connect(m_connection.get(), &X11Connection::eventReceived, this, &X11Panels::handle);
    m_compositor.onChanged = [this] { onTransparencyChanged(); };
    m_knowsBlur = readBlur();
}

void X11Panels::prepare(quintptr window, Kind kind) {
    const xcb_window_t id = native(window);
    awaitToolkit();
    m_connection->select(id, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    const auto attributes =
        m_connection->reply<xcb_get_window_attributes_reply>(xcb_get_window_attributes(m_connection->xcb(), id));
    const bool isMapped = attributes && attributes->map_state != XCB_MAP_STATE_UNMAPPED;
    setUp(id, *m_panels.insert(id, {.kind = kind, .isMapped = isMapped}));
}

void X11Panels::reserve(quintptr window, Qt::Edge edge, const QRect& display, const QRect& area) {
    QList<QRect> displays;
    for (const X11Monitor& monitor : m_monitors->all())
        displays.append(monitor.frame);
    const auto strut = strutFor(edge, display, area, displays, m_windows->desktopSize());
    const auto numbers = strut.value_or(Strut{}).toProperty();
    const auto& atoms = m_connection->atoms();
    m_connection->setNumbers(native(window), atoms.netWmStrutPartial, XCB_ATOM_CARDINAL,
                             {numbers.begin(), numbers.end()});
    m_connection->setNumbers(native(window), atoms.netWmStrut, XCB_ATOM_CARDINAL,
                             {numbers.begin(), numbers.begin() + 4});
    m_connection->flush();
}

void X11Panels::setInputRegion(quintptr window, const QRegion& region) {
    if (!m_knowsShapes)
        return;
    QList<xcb_rectangle_t> rectangles;
    for (const QRect& part : region)
        rectangles.append({static_cast<std::int16_t>(part.x()), static_cast<std::int16_t>(part.y()),
                           static_cast<std::uint16_t>(part.width()), static_cast<std::uint16_t>(part.height())});
    xcb_shape_rectangles(m_connection->xcb(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED,
                         native(window), 0, 0, static_cast<std::uint32_t>(rectangles.size()), rectangles.constData());
    m_connection->flush();
}

void X11Panels::setBlurRegion(quintptr window, const QRegion& region) {
    const xcb_atom_t property = m_connection->atoms().kdeBlurRegion;
    QList<quint32> numbers;
    for (const QRect& part : region) {
        for (const int number : {part.x(), part.y(), part.width(), part.height()})
            numbers.append(static_cast<quint32>(number));
    }
    // No rectangles at all would mean the whole window.
    if (numbers.isEmpty())
        xcb_delete_property(m_connection->xcb(), native(window), property);
    else
        m_connection->setNumbers(native(window), property, XCB_ATOM_CARDINAL, numbers);
    m_connection->flush();
}

/// A compositor that blurs says so by a property of that name on the root window, whatever its value.
bool X11Panels::readBlur() {
    const auto list =
        m_connection->reply<xcb_list_properties_reply>(xcb_list_properties(m_connection->xcb(), m_connection->root()));
    if (!list)
        return false;
    const std::span names(xcb_list_properties_atoms(list.get()),
                          static_cast<std::size_t>(xcb_list_properties_atoms_length(list.get())));
    return std::ranges::find(names, m_connection->atoms().kdeBlurRegion) != names.end();
}

void X11Panels::activate(quintptr window) {
    const auto panel = m_panels.find(native(window));
    if (panel == m_panels.end() || panel->isMapped)
        bringToFront(native(window));
    else
        panel->isToBeActivated = true;
}

void X11Panels::bringToFront(xcb_window_t window) {
    m_connection->withServerTime([self = QPointer(this), window](xcb_timestamp_t time) {
        if (!self)
            return;
        if (self->m_panels.value(window).kind == Kind::gate)
            self->m_requests.moveToDesktop(window, self->m_windows->currentDesktop());
        // The active full-screen window stays on top of everything until another window is active.
        self->m_requests.activate(window, time);
        self->m_requests.stackAbove(window);
        for (auto panel = self->m_panels.cbegin(); panel != self->m_panels.cend(); ++panel) {
            if (panel->kind == Kind::dock && panel->isMapped)
                self->m_requests.stackAbove(panel.key());
        }
        if (!self->m_windows->hasManager()) {
            xcb_set_input_focus(self->m_connection->xcb(), XCB_INPUT_FOCUS_POINTER_ROOT, window, time);
            self->m_connection->flush();
        }
    });
}

void X11Panels::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7f) {
    case XCB_MAP_NOTIFY: {
        const auto window = reinterpret_cast<const xcb_map_notify_event_t&>(event).window;
        if (const auto panel = m_panels.find(window); panel != m_panels.end())
            handleMapped(window, *panel);
        break;
    }
    case XCB_UNMAP_NOTIFY: {
        const auto window = reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window;
        if (const auto panel = m_panels.find(window); panel != m_panels.end()) {
            panel->isMapped = false;
            setUp(window, *panel);
        }
        break;
    }
    case XCB_PROPERTY_NOTIFY: {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        const auto& atoms = m_connection->atoms();
        const std::array<xcb_atom_t, 5> ours{atoms.netWmWindowType, atoms.netWmState, atoms.netWmDesktop,
                                             atoms.wmProtocols, XCB_ATOM_WM_HINTS};
        if (change.window == m_connection->root() && change.atom == atoms.netClientListStacking)
            stackCards();
        if (change.window == m_connection->root() && change.atom == atoms.kdeBlurRegion) {
            m_knowsBlur = change.state == XCB_PROPERTY_NEW_VALUE;
            onTransparencyChanged();
        }
        const auto panel = m_panels.constFind(change.window);
        if (panel != m_panels.constEnd() && std::ranges::find(ours, change.atom) != ours.end()) {
            setUp(change.window, *panel);
            if (change.atom == atoms.netWmDesktop)
                keepEverywhere(change.window, *panel);
        }
        break;
    }
    case XCB_DESTROY_NOTIFY:
        m_panels.remove(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    default:
        break;
    }
}

void X11Panels::handleMapped(xcb_window_t window, Panel& panel) {
    const auto& atoms = m_connection->atoms();
    panel.isMapped = true;
    if (isStackedByUs(panel.kind))
        stackCards();
    if (!isManaged(panel.kind))
        return;
    m_requests.addStates(window, atoms.netWmStateAbove, XCB_ATOM_NONE);
    m_requests.addStates(window, atoms.netWmStateSkipTaskbar, atoms.netWmStateSkipPager);
    if (panel.kind == Kind::dock) {
        m_requests.addStates(window, atoms.netWmStateSticky, XCB_ATOM_NONE);
        m_requests.moveToDesktop(window, everyDesktop);
    }
    if (std::exchange(panel.isToBeActivated, false))
        bringToFront(window);
}

/// Above the highest window that the window manager stacks, docks left out, and no higher: what covers everything for a
/// reason of its own, as a locked screen does, covers messages too.
void X11Panels::stackCards() {
    const auto isCard = [](const Panel& panel) { return isStackedByUs(panel.kind) && panel.isMapped; };
    if (std::ranges::none_of(m_panels, isCard))
        return;
    auto stack = m_connection->property(m_connection->root(), m_connection->atoms().netClientListStacking).numbers();
    stack.removeIf([this](xcb_window_t id) {
        const X11Window* window = m_windows->find(id);
        return window != nullptr && window->role == X11Window::Role::dock;
    });
    if (stack.isEmpty())
        return;
    const std::array<std::uint32_t, 2> place{frameOf(stack.last()), XCB_STACK_MODE_ABOVE};
    for (auto panel = m_panels.cbegin(); panel != m_panels.cend(); ++panel) {
        if (isCard(*panel))
            xcb_configure_window(m_connection->xcb(), panel.key(),
                                 XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, place.data());
    }
    m_connection->flush();
}

/// The window's ancestor among those that are stacked on the screen.
xcb_window_t X11Panels::frameOf(xcb_window_t window) const {
    const auto tree = m_connection->reply<xcb_query_tree_reply>(xcb_query_tree(m_connection->xcb(), window));
    const bool isTop = !tree || tree->parent == m_connection->root() || tree->parent == XCB_WINDOW_NONE;
    return isTop ? window : frameOf(tree->parent);
}

xcb_atom_t X11Panels::typeOf(Kind kind) const {
    const auto& atoms = m_connection->atoms();
    switch (kind) {
    case Kind::dock:
    case Kind::card:
    case Kind::glow: // compositors draw no shadow around these
        return atoms.netWmWindowTypeDock;
    case Kind::menu:
        return atoms.netWmWindowTypePopupMenu;
    case Kind::gate:
        break;
    }
    return atoms.netWmWindowTypeDialog;
}

void X11Panels::setUp(xcb_window_t window, const Panel& panel) {
    const QList<quint32> type{typeOf(panel.kind)};
    const xcb_atom_t property = m_connection->atoms().netWmWindowType;
    if (m_connection->property(window, property).numbers() != type)
        m_connection->setNumbers(window, property, XCB_ATOM_ATOM, type);
    if (panel.kind == Kind::dock)
        refuseFocus(window);
    // Once a window is mapped, its state is the window manager's to write.
    if (isManaged(panel.kind) && !panel.isMapped)
        setUpStates(window, panel.kind);
    m_connection->flush();
}

void X11Panels::setUpStates(xcb_window_t window, Kind kind) {
    const auto& atoms = m_connection->atoms();
    const auto before = m_connection->property(window, atoms.netWmState).numbers();
    auto states = before;
    QList<xcb_atom_t> wanted{atoms.netWmStateAbove, atoms.netWmStateSkipTaskbar, atoms.netWmStateSkipPager};
    if (kind == Kind::dock) {
        wanted.append(atoms.netWmStateSticky);
        if (m_connection->property(window, atoms.netWmDesktop).number() != everyDesktop)
            m_connection->setNumbers(window, atoms.netWmDesktop, XCB_ATOM_CARDINAL, {everyDesktop});
    }
    for (const xcb_atom_t state : std::as_const(wanted)) {
        if (!states.contains(state))
            states.append(state);
    }
    if (states != before)
        m_connection->setNumbers(window, atoms.netWmState, XCB_ATOM_ATOM, states);
}

/// Programs that arrange windows take a dock for one of theirs.
void X11Panels::keepEverywhere(xcb_window_t window, const Panel& panel) {
    if (panel.kind != Kind::dock || !panel.isMapped)
        return;
    const auto desktop = m_connection->property(window, m_connection->atoms().netWmDesktop).number();
    if (desktop && *desktop != everyDesktop)
        m_requests.moveToDesktop(window, everyDesktop);
}

void X11Panels::refuseFocus(xcb_window_t window) {
    constexpr quint32 inputHint = 1;
    constexpr qsizetype hintCount = 9;
    const auto& atoms = m_connection->atoms();
    const auto before = m_connection->property(window, XCB_ATOM_WM_HINTS).numbers();
    auto hints = before;
    hints.resize(hintCount);
    hints[0] |= inputHint;
    hints[1] = 0;
    if (hints != before)
        m_connection->setNumbers(window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, hints);

    auto protocols = m_connection->property(window, atoms.wmProtocols).numbers();
    if (protocols.removeAll(atoms.wmTakeFocus) > 0)
        m_connection->setNumbers(window, atoms.wmProtocols, XCB_ATOM_ATOM, protocols);
}

} // namespace fendrel
