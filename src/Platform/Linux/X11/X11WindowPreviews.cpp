#include "Platform/Linux/X11/X11WindowPreviews.h"

#include <QPointer>

#include <xcb/composite.h>
#include <xcb/damage.h>

#include <algorithm>
#include <chrono>

namespace fendrel {

using namespace std::chrono_literals;

namespace {

constexpr auto leastInterval = 100ms;
constexpr Clock::Duration leastIntervalOfAll = Clock::Duration(1s) / 30; ///< between two, of whichever windows
constexpr qsizetype keptWindows = 4;
constexpr QSize keptSize(320, 200); ///< for a picture of which nobody has said yet how large it is to be

} // namespace

X11WindowPreviews::X11WindowPreviews(std::shared_ptr<X11Windows> windows,
                                     const std::shared_ptr<X11Connection>& connection, Clock& clock)
    : m_windows(std::move(windows)),
      m_connection(*connection),
      m_clock(clock),
      m_scaler(connection),
      m_compositor(connection, "_NET_WM_CM_S" + QByteArray::number(connection->screenNumber())),
      m_damageEvent(m_connection.firstEvent(xcb_damage_id)),
      m_hasComposite(m_connection.firstEvent(xcb_composite_id).has_value()) {
    // The server wants to hear the versions before anything else of the extensions.
    if (m_hasComposite)
        m_connection.reply<xcb_composite_query_version_reply>(
            xcb_composite_query_version(m_connection.xcb(), XCB_COMPOSITE_MAJOR_VERSION, XCB_COMPOSITE_MINOR_VERSION));
    if (m_damageEvent)
        m_connection.reply<xcb_damage_query_version_reply>(
            xcb_damage_query_version(m_connection.xcb(), XCB_DAMAGE_MAJOR_VERSION, XCB_DAMAGE_MINOR_VERSION));

    m_compositor.onChanged = [this] {
        for (auto& [id, followed] : m_followed)
            begin(followed);
        releaseAll();
        keepActive();
        onAvailabilityChanged();
    };
    connect(&m_connection, &X11Connection::eventReceived, this, &X11WindowPreviews::handle);
    connect(m_windows.get(), &X11Windows::activeChanged, this, &X11WindowPreviews::keepActive);
    connect(m_windows.get(), &X11Windows::listChanged, this, &X11WindowPreviews::forgetGone);
    connect(m_windows.get(), &X11Windows::windowChanged, this, [this](const X11Window& now, const X11Window& before) {
        if (now.isMinimized == before.isMinimized)
            return;
        if (now.isMinimized)
            takeKept(now.id);
        beginAgain(now.id);
    });
    keepActive();
}

X11WindowPreviews::~X11WindowPreviews() {
    for (auto& [id, followed] : m_followed)
        forgetFrame(followed);
    releaseAll();
}

bool X11WindowPreviews::isAvailable() const {
    return m_hasComposite && m_damageEvent && m_scaler.isAvailable() && m_compositor.window() != XCB_WINDOW_NONE;
}

Handle X11WindowPreviews::follow(WindowID window, QSize size, Picture onPicture) {
    const quint64 id = m_nextID++;
    Followed& followed = m_followed[id];
    followed.id = id;
    followed.window = static_cast<xcb_window_t>(window.value);
    followed.size = size;
    followed.onPicture = std::move(onPicture);
    begin(followed);
    return Handle([self = QPointer(this), id] {
        if (!self)
            return;
        if (const auto found = self->m_followed.find(id); found != self->m_followed.end()) {
            self->forgetFrame(found->second);
            self->m_followed.erase(found);
        }
    });
}

void X11WindowPreviews::handle(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7f;
    if (m_damageEvent && type == *m_damageEvent + XCB_DAMAGE_NOTIFY) {
        const auto damage = reinterpret_cast<const xcb_damage_notify_event_t&>(event).damage;
        for (auto& [id, followed] : m_followed) {
            if (followed.damage == damage)
                askSoon(followed);
        }
    } else if (type == XCB_REPARENT_NOTIFY) {
        const auto window = reinterpret_cast<const xcb_reparent_notify_event_t&>(event).window;
        m_frames.remove(window);
        release(window);
        beginAgain(window);
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        sizeDidChange(reinterpret_cast<const xcb_configure_notify_event_t&>(event));
    }
}

/// A window of another size is drawn into another pixmap.
void X11WindowPreviews::sizeDidChange(const xcb_configure_notify_event_t& now) {
    const QSize size(now.width, now.height);
    const auto kept = std::ranges::find(m_kept, now.window, &Kept::window);
    if (kept != m_kept.end() && kept->size != size && isSeen(now.window))
        keep(now.window, Frame(kept->frame), size);
}

bool X11WindowPreviews::isSeen(xcb_window_t window) const {
    const X11Window* known = m_windows->find(window);
    return isAvailable() && known != nullptr && !known->isMinimized;
}

std::optional<X11WindowPreviews::Frame> X11WindowPreviews::frameOf(xcb_window_t window) {
    if (const auto known = m_frames.constFind(window); known != m_frames.constEnd())
        return *known;
    auto* xcb = m_connection.xcb();
    for (xcb_window_t top = window; top != XCB_WINDOW_NONE;) {
        const auto look = xcb_get_window_attributes(xcb, top);
        const auto place = xcb_query_tree(xcb, top);
        const auto seen = m_connection.reply<xcb_get_window_attributes_reply>(look);
        const auto tree = m_connection.reply<xcb_query_tree_reply>(place);
        if (!seen || !tree)
            return {};
        if (tree->parent == m_connection.root())
            return *m_frames.insert(window, {.window = top, .format = m_scaler.format(seen->visual)});
        top = tree->parent;
    }
    return {};
}

void X11WindowPreviews::begin(Followed& followed) {
    forgetFrame(followed);
    const auto frame = isSeen(followed.window) ? frameOf(followed.window) : std::nullopt;
    if (!frame) {
        tellLast(followed);
        return;
    }
    auto* xcb = m_connection.xcb();
    followed.frame = *frame;
    followed.damage = xcb_generate_id(xcb);
    const auto made = xcb_damage_create_checked(xcb, followed.damage, frame->window, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_discard_reply(xcb, made.sequence);
    askSoon(followed);
}

void X11WindowPreviews::tellLast(Followed& followed) {
    if (const auto known = m_last.constFind(followed.window); known != m_last.constEnd())
        followed.wait = m_clock.after(0ms, [tell = followed.onPicture, picture = *known] { tell(picture); });
}

void X11WindowPreviews::beginAgain(xcb_window_t window) {
    for (auto& [id, followed] : m_followed) {
        if (followed.window == window)
            begin(followed);
    }
}

void X11WindowPreviews::forgetFrame(Followed& followed) {
    followed.wait.reset();
    followed.isAsking = false;
    followed.hasChanged = false;
    followed.frame = {};
    if (const auto damage = std::exchange(followed.damage, XCB_NONE); damage != XCB_NONE) {
        // It went with its window, perhaps.
        const auto ended = xcb_damage_destroy_checked(m_connection.xcb(), damage);
        xcb_discard_reply(m_connection.xcb(), ended.sequence);
        m_connection.flush();
    }
}

void X11WindowPreviews::askSoon(Followed& followed) {
    if (followed.isAsking) {
        followed.hasChanged = true;
        return;
    }
    followed.isAsking = true;
    const auto due = std::max(m_clock.continuousNow(), followed.last + interval()) - m_clock.continuousNow();
    followed.wait = m_clock.after(due, [this, id = followed.id] { ask(id); });
}

/// Each picture is work for the server, and windows that play something want a new one all the time.
Clock::Duration X11WindowPreviews::interval() const {
    const auto busy = std::ranges::count_if(m_followed, [](const auto& entry) { return entry.second.isAsking; });
    return std::max<Clock::Duration>(leastInterval, busy * leastIntervalOfAll);
}

void X11WindowPreviews::ask(quint64 id) {
    Followed& followed = m_followed.at(id); // or its wait would be over
    followed.last = m_clock.continuousNow();
    followed.hasChanged = false;
    auto* xcb = m_connection.xcb();
    const auto seen = xcb_damage_subtract_checked(xcb, followed.damage, XCB_NONE, XCB_NONE);
    xcb_discard_reply(xcb, seen.sequence);
    const auto frame = xcb_get_geometry(xcb, followed.frame.window);
    m_connection.whenReplied(frame.sequence, [self = QPointer(this), id](const XcbPointer<void>& reply) {
        if (self && reply)
            self->take(id, *static_cast<const xcb_get_geometry_reply_t*>(reply.get()));
    });
}

void X11WindowPreviews::take(quint64 id, const xcb_get_geometry_reply_t& frame) {
    const auto found = m_followed.find(id);
    if (found == m_followed.end() || found->second.damage == XCB_NONE)
        return;
    const Followed& followed = found->second;
    const int border = 2 * frame.border_width;
    const QRect all(0, 0, frame.width + border, frame.height + border);
    // Without the shadow that some applications draw around themselves.
    const QRect part = m_windows->frame(followed.window).value_or(all).translated(-frame.x, -frame.y) & all;
    auto* xcb = m_connection.xcb();
    const xcb_pixmap_t pixmap = xcb_generate_id(xcb);
    const auto named = xcb_composite_name_window_pixmap_checked(xcb, followed.frame.window, pixmap);
    xcb_discard_reply(xcb, named.sequence);
    const auto done = [self = QPointer(this), id, damage = followed.damage](const QImage& picture) {
        if (!self)
            return;
        const auto still = self->m_followed.find(id);
        if (still == self->m_followed.end() || still->second.damage != damage)
            return;
        still->second.isAsking = false;
        if (still->second.hasChanged) {
            self->askSoon(still->second);
        } else if (picture.isNull()) {
            self->tellLast(still->second); // it is on another desktop, perhaps
            return;
        }
        self->remember(still->second.window, picture);
        const Picture tell = still->second.onPicture;
        if (!picture.isNull())
            tell(picture);
    };
    m_scaler.scale(pixmap, followed.frame.format, part.isEmpty() ? all : part, followed.size, done);
    const auto freed = xcb_free_pixmap_checked(xcb, pixmap);
    xcb_discard_reply(xcb, freed.sequence);
    m_connection.flush();
}

void X11WindowPreviews::keepActive() {
    const X11Window* active = m_windows->find(m_windows->active());
    if (active == nullptr || !active->isRegular() || !isSeen(active->id))
        return;
    if (const auto frame = frameOf(active->id))
        keep(active->id, *frame, {});
}

void X11WindowPreviews::keep(xcb_window_t window, const Frame& frame, QSize size) {
    release(window);
    auto* xcb = m_connection.xcb();
    m_kept.prepend({.window = window, .frame = frame, .pixmap = xcb_generate_id(xcb), .size = size});
    const auto named = xcb_composite_name_window_pixmap_checked(xcb, frame.window, m_kept.first().pixmap);
    xcb_discard_reply(xcb, named.sequence);
    while (m_kept.size() > keptWindows)
        release(m_kept.last().window);
    m_connection.flush();
}

void X11WindowPreviews::release(xcb_window_t window) {
    m_kept.removeIf([&](const Kept& kept) {
        if (kept.window != window)
            return false;
        const auto freed = xcb_free_pixmap_checked(m_connection.xcb(), kept.pixmap);
        xcb_discard_reply(m_connection.xcb(), freed.sequence);
        return true;
    });
}

void X11WindowPreviews::releaseAll() {
    while (!m_kept.isEmpty())
        release(m_kept.last().window);
}

/// The window is off the screen already; its pixmap is not, as long as it is kept.
void X11WindowPreviews::takeKept(xcb_window_t window) {
    const auto kept = std::ranges::find(m_kept, window, &Kept::window);
    if (kept == m_kept.end())
        return;
    const Kept taken = *kept;
    m_kept.erase(kept);
    const auto size = xcb_get_geometry(m_connection.xcb(), taken.pixmap);
    m_connection.whenReplied(size.sequence, [self = QPointer(this), taken](const XcbPointer<void>& reply) {
        if (!self)
            return;
        if (reply) {
            const auto& pixmap = *static_cast<const xcb_get_geometry_reply_t*>(reply.get());
            const auto done = [self, window = taken.window](const QImage& picture) {
                if (!self)
                    return;
                self->remember(window, picture);
                self->beginAgain(window);
            };
            self->m_scaler.scale(taken.pixmap, taken.frame.format, {0, 0, pixmap.width, pixmap.height}, keptSize, done);
        }
        const auto freed = xcb_free_pixmap_checked(self->m_connection.xcb(), taken.pixmap);
        xcb_discard_reply(self->m_connection.xcb(), freed.sequence);
        self->m_connection.flush();
    });
}

void X11WindowPreviews::remember(xcb_window_t window, const QImage& picture) {
    if (!picture.isNull() && m_windows->find(window) != nullptr)
        m_last.insert(window, picture);
}

void X11WindowPreviews::forgetGone() {
    const auto isGone = [this](auto entry) { return m_windows->find(entry.key()) == nullptr; };
    m_last.removeIf(isGone);
    m_frames.removeIf(isGone);
    QList<xcb_window_t> gone;
    for (const Kept& kept : std::as_const(m_kept)) {
        if (m_windows->find(kept.window) == nullptr)
            gone.append(kept.window);
    }
    for (const xcb_window_t window : std::as_const(gone))
        release(window);
}

} // namespace fendrel
