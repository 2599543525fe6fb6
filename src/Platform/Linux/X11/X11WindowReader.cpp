#include "Platform/Linux/X11/X11WindowReader.h"

#include <QCoreApplication>
#include <QSysInfo>

#include <xcb/res.h>

namespace fendrel {

using namespace Qt::StringLiterals;

X11WindowReader::X11WindowReader(X11Connection& connection) : m_connection(connection) {
    const auto& atoms = connection.atoms();
    m_fields = {
        {{atoms.netWmName, XCB_ATOM_WM_NAME}, &X11WindowReader::readTitle},
        {{XCB_ATOM_WM_CLASS}, &X11WindowReader::readClass},
        {{atoms.netWmPid, XCB_ATOM_WM_CLIENT_MACHINE}, &X11WindowReader::readProcess},
        {{XCB_ATOM_WM_TRANSIENT_FOR}, &X11WindowReader::readTransientFor},
        {{atoms.netWmWindowType}, &X11WindowReader::readRole},
        {{atoms.netWmState, atoms.wmState}, &X11WindowReader::readState},
        {{XCB_ATOM_WM_HINTS}, &X11WindowReader::readHints},
        {{atoms.netWmDesktop}, &X11WindowReader::readDesktop},
        {{atoms.netWmStrutPartial, atoms.netWmStrut}, &X11WindowReader::readStrut},
        {{atoms.gtkApplicationId, atoms.kdeDesktopFile}, &X11WindowReader::readDeclaredEntry},
    };
    // Between containers the server numbers processes in another way than we do. We are the proof to the contrary.
    m_namesProcesses = connection.firstEvent(xcb_res_id).has_value() &&
                       connectedProcess(connection.ownWindow()) == QCoreApplication::applicationPid();
}

void X11WindowReader::setSupported(const QList<quint32>& supported) {
    m_tellsHidden = supported.contains(m_connection.atoms().netWmStateHidden);
}

X11Window X11WindowReader::read(xcb_window_t id) const {
    QList<QList<xcb_get_property_cookie_t>> cookies;
    for (const Field& field : m_fields)
        cookies.append(ask(id, field));
    X11Window window{.id = id, .client = id & ~xcb_get_setup(m_connection.xcb())->resource_id_mask};
    for (qsizetype index = 0; index < m_fields.size(); ++index)
        (this->*m_fields[index].apply)(window, answer(cookies[index]));
    return window;
}

void X11WindowReader::update(X11Window& window, xcb_atom_t property) const {
    for (const Field& field : m_fields) {
        if (field.properties.contains(property))
            (this->*field.apply)(window, answer(ask(window.id, field)));
    }
}

QList<xcb_get_property_cookie_t> X11WindowReader::ask(xcb_window_t window, const Field& field) const {
    QList<xcb_get_property_cookie_t> cookies;
    for (const xcb_atom_t property : field.properties)
        cookies.append(m_connection.ask(window, property));
    return cookies;
}

X11WindowReader::Properties X11WindowReader::answer(const QList<xcb_get_property_cookie_t>& cookies) const {
    Properties read;
    for (const auto cookie : cookies)
        read.append(m_connection.answer(cookie));
    return read;
}

void X11WindowReader::readTitle(X11Window& window, const Properties& read) const {
    window.title = read[read[0].format != 0 ? 0 : 1].text();
}

void X11WindowReader::readClass(X11Window& window, const Properties& read) const {
    const auto names = read[0].bytes().split('\0');
    window.instanceName = QString::fromUtf8(names.value(0));
    window.className = QString::fromUtf8(names.value(1));
}

void X11WindowReader::readProcess(X11Window& window, const Properties& read) const {
    const QString machine = read[1].text();
    const bool isLocal = machine.isEmpty() || machine == "localhost"_L1 || machine == QSysInfo::machineHostName();
    window.pid.reset();
    if (!isLocal)
        return;
    // What an application says of itself is wrong inside a sandbox with process ids of its own.
    if (m_namesProcesses)
        window.pid = connectedProcess(window.id);
    if (const auto claimed = read[0].number(); !window.pid && claimed && *claimed > 0)
        window.pid = *claimed;
}

std::optional<qint64> X11WindowReader::connectedProcess(xcb_window_t window) const {
    const xcb_res_client_id_spec_t wanted{.client = window, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto answer =
        m_connection.reply<xcb_res_query_client_ids_reply>(xcb_res_query_client_ids(m_connection.xcb(), 1, &wanted));
    if (!answer)
        return {};
    auto ids = xcb_res_query_client_ids_ids_iterator(answer.get());
    if (ids.rem == 0 || xcb_res_client_id_value_value_length(ids.data) == 0)
        return {};
    const auto pid = *xcb_res_client_id_value_value(ids.data);
    return pid > 0 && pid < 0x8000'0000 ? std::optional<qint64>(pid) : std::nullopt;
}

void X11WindowReader::readTransientFor(X11Window& window, const Properties& read) const {
    window.transientFor = read[0].number().value_or(XCB_WINDOW_NONE);
}

void X11WindowReader::readRole(X11Window& window, const Properties& read) const {
    const auto& atoms = m_connection.atoms();
    const auto types = read[0].numbers();
    if (types.contains(atoms.netWmWindowTypeDesktop))
        window.role = X11Window::Role::desktop;
    else if (types.contains(atoms.netWmWindowTypeDock))
        window.role = X11Window::Role::dock;
    else if (types.contains(atoms.netWmWindowTypeSplash) || types.contains(atoms.netWmWindowTypeNotification))
        window.role = X11Window::Role::passing;
    else
        window.role = X11Window::Role::ordinary;
}

void X11WindowReader::readState(X11Window& window, const Properties& read) const {
    constexpr quint32 iconic = 3;
    const auto& atoms = m_connection.atoms();
    const auto states = read[0].numbers();
    window.isSkippingTaskbar = states.contains(atoms.netWmStateSkipTaskbar);
    window.isFullScreen = states.contains(atoms.netWmStateFullscreen);
    window.demandsAttention = states.contains(atoms.netWmStateDemandsAttention);
    // A window rolled up to its title bar is hidden to some window managers, but it is not minimised.
    window.isMinimized = m_tellsHidden
                             ? states.contains(atoms.netWmStateHidden) && !states.contains(atoms.netWmStateShaded)
                             : read[1].number() == iconic;
}

void X11WindowReader::readHints(X11Window& window, const Properties& read) const {
    constexpr quint32 urgency = 256;
    window.isUrgent = (read[0].number().value_or(0) & urgency) != 0;
}

void X11WindowReader::readDesktop(X11Window& window, const Properties& read) const {
    constexpr quint32 everywhere = 0xFFFF'FFFF;
    window.desktop = read[0].number();
    if (window.desktop == everywhere)
        window.desktop.reset();
}

void X11WindowReader::readStrut(X11Window& window, const Properties& read) const {
    const auto partial = read[0].numbers();
    const auto whole = read[1].numbers();
    // Most windows have neither, and the size of the desktop is a question to the server.
    window.strut =
        partial.isEmpty() && whole.isEmpty() ? std::nullopt : Strut::fromProperties(partial, whole, desktopSize());
}

void X11WindowReader::readDeclaredEntry(X11Window& window, const Properties& read) const {
    window.declaredEntry = read[0].text();
    if (window.declaredEntry.isEmpty())
        window.declaredEntry = read[1].text();
    if (window.declaredEntry.endsWith(".desktop"_L1))
        window.declaredEntry.chop(8);
}

std::optional<QRect> X11WindowReader::frame(xcb_window_t window) const {
    auto* xcb = m_connection.xcb();
    const auto& atoms = m_connection.atoms();
    const auto size = xcb_get_geometry(xcb, window);
    const auto place = xcb_translate_coordinates(xcb, window, m_connection.root(), 0, 0);
    const auto decoration = m_connection.ask(window, atoms.netFrameExtents);
    const auto shadow = m_connection.ask(window, atoms.gtkFrameExtents);

    const auto sized = m_connection.reply<xcb_get_geometry_reply>(size);
    const auto placed = m_connection.reply<xcb_translate_coordinates_reply>(place);
    const auto margins = [this](xcb_get_property_cookie_t cookie) {
        const auto edges = m_connection.answer(cookie).numbers(); // left, right, top, bottom
        const auto at = [&](qsizetype index) { return static_cast<int>(edges.value(index)); };
        return QMargins(at(0), at(2), at(1), at(3));
    };
    const QMargins outside = margins(decoration);
    const QMargins inside = margins(shadow);
    if (!sized || !placed)
        return {};
    return QRect(placed->dst_x, placed->dst_y, sized->width, sized->height) + outside - inside;
}

QSize X11WindowReader::desktopSize() const {
    const auto size =
        m_connection.reply<xcb_get_geometry_reply>(xcb_get_geometry(m_connection.xcb(), m_connection.root()));
    return size ? QSize(size->width, size->height) : QSize();
}

} // namespace fendrel
