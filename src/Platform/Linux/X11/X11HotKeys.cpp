#include "Platform/Linux/X11/X11HotKeys.h"

#include <QPointer>

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>

namespace fendrel {

namespace {

std::uint16_t maskOf(int modifiers, const KeyMap& map) {
    const auto either = [](std::uint16_t found, std::uint16_t usual) { return found != 0 ? found : usual; };
    std::uint16_t mask = 0;
    if ((modifiers & HotKeys::shift) != 0)
        mask |= XCB_MOD_MASK_SHIFT;
    if ((modifiers & HotKeys::control) != 0)
        mask |= XCB_MOD_MASK_CONTROL;
    if ((modifiers & HotKeys::option) != 0)
        mask |= either(map.modifier(XKB_KEY_Alt_L), XCB_MOD_MASK_1);
    if ((modifiers & HotKeys::command) != 0)
        mask |= either(map.modifier(XKB_KEY_Super_L), XCB_MOD_MASK_4);
    return mask;
}

} // namespace

X11HotKeys::X11HotKeys(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)), m_map(*m_connection) {
    readLocks();
    connect(m_connection.get(), &X11Connection::eventReceived, this, &X11HotKeys::handle);
}

X11HotKeys::~X11HotKeys() {
    for (const auto& [id, hotKey] : m_hotKeys) {
        if (hotKey.grabbed)
            letGo(*hotKey.grabbed);
    }
}

std::optional<Handle> X11HotKeys::grab(int modifiers, const QString& key, std::function<void()> onPressed) {
    HotKey hotKey{.modifiers = modifiers, .label = key, .onPressed = std::move(onPressed)};
    hotKey.grabbed = take(hotKey);
    if (!hotKey.grabbed)
        return {};
    const int id = ++m_lastID;
    m_hotKeys.emplace(id, std::move(hotKey));
    return Handle([self = QPointer(this), id] {
        if (self)
            self->letGo(id);
    });
}

void X11HotKeys::yieldKeyboard() {
    // Answered, so that the toolkit, which has a connection of its own, finds it free.
    m_connection->check(xcb_ungrab_keyboard_checked(m_connection->xcb(), XCB_CURRENT_TIME));
}

void X11HotKeys::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7f) {
    case XCB_KEY_PRESS:
        handlePress(reinterpret_cast<const xcb_key_press_event_t&>(event));
        break;
    case XCB_KEY_RELEASE: {
        const auto& release = reinterpret_cast<const xcb_key_release_event_t&>(event);
        m_lastRelease = {release.detail, release.time};
        break;
    }
    case XCB_MAPPING_NOTIFY:
        // One change of the layout is told in several events.
        if (reinterpret_cast<const xcb_mapping_notify_event_t&>(event).request != XCB_MAPPING_POINTER &&
            !std::exchange(m_isLayoutNew, true))
            QMetaObject::invokeMethod(this, &X11HotKeys::grabAnew, Qt::QueuedConnection);
        break;
    default:
        break;
    }
}

void X11HotKeys::handlePress(const xcb_key_press_event_t& press) {
    // A key that is kept down repeats itself: released and pressed at one moment.
    if (m_lastRelease == std::pair(press.detail, press.time))
        return;
    constexpr unsigned everyModifier = 0xff; // buttons of the pointer are told beside them
    const Combination pressed{.modifiers = static_cast<std::uint16_t>(press.state & everyModifier & ~m_everyLock),
                              .key = press.detail};
    const auto found =
        std::ranges::find(m_hotKeys, std::optional(pressed), [](const auto& entry) { return entry.second.grabbed; });
    if (found == m_hotKeys.end())
        return;
    const auto onPressed = found->second.onPressed; // it may let go of this very key
    onPressed();
}

void X11HotKeys::readLocks() {
    m_locks = {0};
    m_everyLock = 0;
    for (const std::uint16_t lock :
         {std::uint16_t{XCB_MOD_MASK_LOCK}, m_map.modifier(XKB_KEY_Num_Lock), m_map.modifier(XKB_KEY_Scroll_Lock)}) {
        if ((m_everyLock | lock) == m_everyLock)
            continue;
        m_everyLock |= lock;
        for (const std::uint16_t others : QList(m_locks))
            m_locks.append(static_cast<std::uint16_t>(others | lock));
    }
}

/// Grabs all of it or nothing.
std::optional<X11HotKeys::Combination> X11HotKeys::take(const HotKey& hotKey) const {
    const auto key = m_map.key(hotKey.label);
    if (!key)
        return {};
    const Combination combination{.modifiers = maskOf(hotKey.modifiers, m_map), .key = *key};
    const auto isHeldByUs = [&](const auto& entry) { return entry.second.grabbed == combination; };
    if (std::ranges::any_of(m_hotKeys, isHeldByUs))
        return {};
    auto* xcb = m_connection->xcb();
    QList<xcb_void_cookie_t> cookies;
    for (const std::uint16_t locks : m_locks)
        cookies.append(xcb_grab_key_checked(xcb, 0, m_connection->root(), combination.modifiers | locks,
                                            combination.key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    bool isTaken = false;
    for (const auto cookie : std::as_const(cookies))
        isTaken |= !m_connection->check(cookie);
    if (!isTaken)
        return combination;
    letGo(combination);
    return {};
}

void X11HotKeys::letGo(const Combination& combination) const {
    for (const std::uint16_t locks : m_locks)
        xcb_ungrab_key(m_connection->xcb(), combination.key, m_connection->root(), combination.modifiers | locks);
    m_connection->flush();
}

void X11HotKeys::letGo(int id) {
    const auto found = m_hotKeys.find(id);
    if (found == m_hotKeys.end())
        return;
    if (found->second.grabbed)
        letGo(*found->second.grabbed);
    m_hotKeys.erase(found);
}

void X11HotKeys::grabAnew() {
    m_isLayoutNew = false;
    for (auto& [id, hotKey] : m_hotKeys) {
        if (hotKey.grabbed)
            letGo(*std::exchange(hotKey.grabbed, {}));
    }
    m_map = KeyMap(*m_connection);
    readLocks();
    for (auto& [id, hotKey] : m_hotKeys)
        hotKey.grabbed = take(hotKey);
}

} // namespace fendrel
