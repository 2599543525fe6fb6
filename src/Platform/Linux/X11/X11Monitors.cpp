#include "Platform/Linux/X11/X11Monitors.h"

#include <QCryptographicHash>

#include <xcb/randr.h>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

X11Monitors::X11Monitors(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)), m_firstEvent(m_connection->firstEvent(xcb_randr_id)) {
    if (m_firstEvent) {
        auto* xcb = m_connection->xcb();
        const auto version = m_connection->reply<xcb_randr_query_version_reply>(xcb_randr_query_version(xcb, 1, 5));
        if (version && (version->major_version > 1 || version->minor_version >= 5))
            xcb_randr_select_input(xcb, m_connection->root(),
                                   XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                                       XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
        else
            m_firstEvent.reset();
    }
    m_hardwareDescription = m_connection->atom("EDID");
    connect(m_connection.get(), &X11Connection::eventReceived, this, &X11Monitors::handle);
    m_monitors = read();
}

void X11Monitors::handle(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7f;
    const bool isAboutRoot =
        type == XCB_CONFIGURE_NOTIFY &&
        reinterpret_cast<const xcb_configure_notify_event_t&>(event).window == m_connection->root();
    const bool isAboutOutputs = m_firstEvent && (type == *m_firstEvent + XCB_RANDR_SCREEN_CHANGE_NOTIFY ||
                                                 type == *m_firstEvent + XCB_RANDR_NOTIFY);
    if (!isAboutRoot && !isAboutOutputs)
        return;
    auto monitors = read();
    if (monitors == m_monitors)
        return;
    m_monitors = std::move(monitors);
    Q_EMIT changed();
}

QList<X11Monitor> X11Monitors::read() const {
    QList<X11Monitor> monitors;
    if (m_firstEvent) {
        const auto answer = m_connection->reply<xcb_randr_get_monitors_reply>(
            xcb_randr_get_monitors(m_connection->xcb(), m_connection->root(), 1));
        for (auto each = xcb_randr_get_monitors_monitors_iterator(answer.get()); answer && each.rem > 0;
             xcb_randr_monitor_info_next(&each)) {
            const auto* outputs = xcb_randr_monitor_info_outputs(each.data);
            const QList<quint32> ids(outputs, outputs + xcb_randr_monitor_info_outputs_length(each.data));
            const QRect frame(each.data->x, each.data->y, each.data->width, each.data->height);
            if (!frame.isEmpty())
                monitors.append(
                    {.id = idOf(ids, each.data->name), .frame = frame, .isPrimary = each.data->primary != 0});
        }
    }
    if (monitors.isEmpty()) {
        const auto size =
            m_connection->reply<xcb_get_geometry_reply>(xcb_get_geometry(m_connection->xcb(), m_connection->root()));
        if (size)
            monitors.append({.id = u"screen"_s, .frame = {0, 0, size->width, size->height}, .isPrimary = true});
    }
    std::ranges::stable_sort(monitors, {}, [](const X11Monitor& monitor) {
        return std::tuple(!monitor.isPrimary, monitor.frame.x(), monitor.frame.y());
    });
    // Two displays of one series may tell the same of themselves; mirrored ones share their place.
    QHash<QString, int> seen;
    for (X11Monitor& monitor : monitors) {
        if (const int number = ++seen[monitor.id]; number > 1)
            monitor.id += u"-%1"_s.arg(number);
    }
    return monitors;
}

QString X11Monitors::idOf(const QList<quint32>& outputs, xcb_atom_t name) const {
    auto* xcb = m_connection->xcb();
    for (const quint32 output : outputs) {
        constexpr std::uint32_t limit = 1024; // in units of four bytes; a description has 128 to 512 bytes
        const auto description = m_connection->reply<xcb_randr_get_output_property_reply>(xcb_randr_get_output_property(
            xcb, output, m_hardwareDescription, XCB_GET_PROPERTY_TYPE_ANY, 0, limit, 0, 0));
        if (!description || description->num_items < 128)
            continue;
        const QByteArray bytes(reinterpret_cast<const char*>(xcb_randr_get_output_property_data(description.get())),
                               xcb_randr_get_output_property_data_length(description.get()));
        const auto hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
        return QString::fromLatin1(hash.toHex().first(16));
    }
    const auto text = m_connection->reply<xcb_get_atom_name_reply>(xcb_get_atom_name(xcb, name));
    if (!text)
        return u"unnamed"_s;
    return QString::fromUtf8(xcb_get_atom_name_name(text.get()), xcb_get_atom_name_name_length(text.get()));
}

} // namespace fendrel
