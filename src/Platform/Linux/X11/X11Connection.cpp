#include "Platform/Linux/X11/X11Connection.h"

#include "Base/Log.h"

#include <xcb/xcbext.h>

#include <chrono>
#include <cstdlib>

namespace fendrel {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr std::uint32_t propertyLimit = 1'048'576; // in units of four bytes; an icon of 256 x 256 takes 65,538

const xcb_screen_t* screenAt(xcb_connection_t* connection, int number) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 1 && number > 0; --number)
        xcb_screen_next(&screens);
    return screens.data;
}

} // namespace

std::shared_ptr<X11Connection> X11Connection::open(Clock& clock) {
    int screenNumber = 0;
    Connected connection(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(connection.get()) != 0)
        return {};
    return std::shared_ptr<X11Connection>(new X11Connection(std::move(connection), screenNumber, clock));
}

X11Connection::X11Connection(Connected connection, int screenNumber, Clock& clock)
    : m_clock(clock),
      m_xcb(std::move(connection)),
      m_screenNumber(screenNumber),
      m_screen(screenAt(m_xcb.get(), screenNumber)),
      m_ownWindow(xcb_generate_id(m_xcb.get())) {
    internAtoms();
    xcb_create_window(xcb(), 0, m_ownWindow, root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                      0, nullptr);
    select(m_ownWindow, XCB_EVENT_MASK_PROPERTY_CHANGE);
    select(root(), XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    m_notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(xcb()), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11Connection::drain);
    flush();
}

X11Connection::~X11Connection() {
    // A socket that is closed with events unread is reset, and the server drops what it had not read of ours. An answer
    // shows that it has.
    const XcbPointer<xcb_get_input_focus_reply_t> all{
        xcb_get_input_focus_reply(xcb(), xcb_get_input_focus(xcb()), nullptr)};
}

void X11Connection::internAtoms() {
    std::array<xcb_intern_atom_cookie_t, x11AtomNames.size()> cookies{};
    for (std::size_t index = 0; index < cookies.size(); ++index) {
        const auto name = x11AtomNames[index].second;
        cookies[index] = xcb_intern_atom(xcb(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    }
    for (std::size_t index = 0; index < cookies.size(); ++index) {
        if (const auto answer = reply<xcb_intern_atom_reply>(cookies[index]))
            m_atoms.*x11AtomNames[index].first = answer->atom;
    }
}

xcb_atom_t X11Connection::atom(const QByteArray& name) {
    const auto cookie = xcb_intern_atom(xcb(), 0, static_cast<std::uint16_t>(name.size()), name.constData());
    const auto answer = reply<xcb_intern_atom_reply>(cookie);
    return answer ? answer->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::optional<std::uint8_t> X11Connection::firstEvent(xcb_extension_t& extension) {
    const auto* data = xcb_get_extension_data(xcb(), &extension);
    drainSoon();
    if (data == nullptr || data->present == 0)
        return {};
    return data->first_event;
}

bool X11Connection::check(xcb_void_cookie_t cookie) {
    const XcbPointer<xcb_generic_error_t> error(xcb_request_check(xcb(), cookie));
    drainSoon();
    return !error;
}

xcb_get_property_cookie_t X11Connection::ask(xcb_window_t window, xcb_atom_t property) const {
    return xcb_get_property(m_xcb.get(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, propertyLimit);
}

X11Property X11Connection::answer(xcb_get_property_cookie_t cookie) {
    const auto answer = reply<xcb_get_property_reply>(cookie);
    if (!answer)
        return {};
    return {.format = answer->format,
            .isUtf8 = answer->type == m_atoms.utf8String,
            .data = {static_cast<const char*>(xcb_get_property_value(answer.get())),
                     xcb_get_property_value_length(answer.get())}};
}

void X11Connection::setNumbers(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                               const QList<quint32>& values) {
    xcb_change_property(xcb(), XCB_PROP_MODE_REPLACE, window, property, type, 32,
                        static_cast<std::uint32_t>(values.size()), values.constData());
}

void X11Connection::sendToWindowManager(xcb_window_t window, xcb_atom_t type, const std::array<quint32, 5>& data) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = type;
    std::copy(data.begin(), data.end(), message.data.data32);
    xcb_send_event(xcb(), 0, root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    flush();
}

void X11Connection::select(xcb_window_t window, std::uint32_t mask) {
    xcb_change_window_attributes(xcb(), window, XCB_CW_EVENT_MASK, &mask);
}

void X11Connection::withServerTime(std::function<void(xcb_timestamp_t)> run) {
    m_awaitingTime.append(std::move(run));
    xcb_change_property(xcb(), XCB_PROP_MODE_APPEND, m_ownWindow, m_atoms.netWmName, m_atoms.utf8String, 8, 0, nullptr);
    flush();
}

void X11Connection::drain() {
    m_isDrainQueued = false;
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(xcb())})
        dispatch(*event);
    handOverReplies();
    if (xcb_connection_has_error(xcb()) != 0 && m_notifier->isEnabled()) {
        m_notifier->setEnabled(false); // or the closed socket would wake us for ever
        qCCritical(logDesktop) << "The connection to the X server was lost";
        std::exit(1); // as the toolkit does, which may hear of it first: there is one end, however it comes
    }
    flush();
}

void X11Connection::whenReplied(unsigned int sequence, std::function<void(XcbPointer<void>)> run) {
    m_awaitingReply.emplaceBack(sequence, std::move(run));
    flush();
}

void X11Connection::handOverReplies() {
    while (!m_awaitingReply.isEmpty()) {
        void* reply = nullptr;
        xcb_generic_error_t* error = nullptr;
        if (xcb_poll_for_reply(xcb(), m_awaitingReply.first().first, &reply, &error) == 0)
            break; // nor is any of those that were asked for later
        XcbPointer<void> answer(reply);
        if (const XcbPointer<xcb_generic_error_t> owned{error})
            note(*owned);
        const auto run = m_awaitingReply.takeFirst().second;
        run(std::move(answer));
    }
}

void X11Connection::drainSoon() {
    if (!std::exchange(m_isDrainQueued, true))
        QMetaObject::invokeMethod(this, &X11Connection::drain, Qt::QueuedConnection);
}

void X11Connection::dispatch(const xcb_generic_event_t& event) {
    if (event.response_type == 0) {
        note(reinterpret_cast<const xcb_generic_error_t&>(event));
        return;
    }
    if ((event.response_type & 0x7f) == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == m_ownWindow) {
            for (const auto& run : std::exchange(m_awaitingTime, {}))
                run(change.time);
            return;
        }
    }
    Q_EMIT eventReceived(event);
}

void X11Connection::note(const xcb_generic_error_t& error) {
    // A window that is gone is everyday life, and a burst of one fault says no more than its first line.
    if (error.error_code == XCB_WINDOW || error.error_code == XCB_DRAWABLE)
        return;
    const auto now = m_clock.continuousNow();
    const std::pair<int, int> kind(error.error_code, error.major_code);
    const auto last = m_lastNoted.constFind(kind);
    if (last != m_lastNoted.constEnd() && now - *last < 10s)
        return;
    m_lastNoted.insert(kind, now);
    qCWarning(logDesktop).noquote() << u"The X server refused request %1.%2 with error %3"_s.arg(error.major_code)
                                           .arg(error.minor_code)
                                           .arg(error.error_code);
}

} // namespace fendrel
