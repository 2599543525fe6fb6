#include "Platform/Linux/X11/PictureScaler.h"

#include <QSysInfo>

#include <xcb/xcb_renderutil.h>

namespace fendrel {

namespace {

constexpr std::uint8_t ownDepth = 32;

xcb_render_fixed_t fixed(double value) {
    return static_cast<xcb_render_fixed_t>(value * 65536);
}

bool isByteOrderOurs(xcb_connection_t* connection) {
    const bool isLittle = xcb_get_setup(connection)->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
    return isLittle == (QSysInfo::ByteOrder == QSysInfo::LittleEndian);
}

} // namespace

PictureScaler::PictureScaler(std::shared_ptr<X11Connection> connection) : m_connection(std::move(connection)) {
    if (!m_connection->firstEvent(xcb_render_id) || !isByteOrderOurs(m_connection->xcb()))
        return;
    const auto* formats = xcb_render_util_query_formats(m_connection->xcb());
    const auto* own =
        formats == nullptr ? nullptr : xcb_render_util_find_standard_format(formats, XCB_PICT_STANDARD_ARGB_32);
    if (own != nullptr)
        m_ownFormat = own->id;
}

xcb_render_pictformat_t PictureScaler::format(xcb_visualid_t visual) const {
    const auto* formats = xcb_render_util_query_formats(m_connection->xcb()); // which keeps them
    const auto* found = xcb_render_util_find_visual_format(formats, visual);
    return found == nullptr ? xcb_render_pictformat_t{XCB_NONE} : found->format;
}

void PictureScaler::scale(xcb_pixmap_t pixmap, xcb_render_pictformat_t format, const QRect& part, QSize size,
                          std::function<void(const QImage&)> done) {
    auto* xcb = m_connection->xcb();
    const xcb_render_picture_t source = xcb_generate_id(xcb);
    quietly(xcb_render_create_picture_checked(xcb, source, pixmap, format, 0, nullptr));

    const QSize wanted = part.size().scaled(part.size().boundedTo(size), Qt::KeepAspectRatio).expandedTo({1, 1});
    QList<Surface> surfaces;
    xcb_render_picture_t from = source;
    QRect rest = part;
    std::optional<xcb_void_cookie_t> drawn;
    // The server looks at four pixels for one: more than half the size at once would leave most of them out.
    while (surfaces.isEmpty() || rest.size() != wanted) {
        const bool isLast = rest.width() < 2 * wanted.width() || rest.height() < 2 * wanted.height();
        const QSize next = isLast ? wanted : rest.size() / 2;
        surfaces.append(makeSurface(next));
        const auto step = draw(from, rest, surfaces.last().picture, next);
        if (drawn)
            quietly(step);
        else
            drawn = step;
        from = surfaces.last().picture;
        rest = QRect(QPoint(), next);
    }
    const auto image = xcb_get_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, surfaces.last().pixmap, 0, 0,
                                     static_cast<std::uint16_t>(wanted.width()),
                                     static_cast<std::uint16_t>(wanted.height()), ~std::uint32_t{});
    quietly(xcb_render_free_picture_checked(xcb, source));
    for (const Surface& surface : std::as_const(surfaces)) {
        quietly(xcb_render_free_picture_checked(xcb, surface.picture));
        quietly(xcb_free_pixmap_checked(xcb, surface.pixmap));
    }
    m_connection->whenReplied(
        image.sequence, [xcb, wanted, first = *drawn, done = std::move(done)](const XcbPointer<void>& answer) {
            // What came later has been answered, so this is known already.
            const XcbPointer<xcb_generic_error_t> failure(xcb_request_check(xcb, first));
            const auto* reply = static_cast<const xcb_get_image_reply_t*>(answer.get());
            const qsizetype length = reply == nullptr ? 0 : xcb_get_image_data_length(reply);
            if (failure || length < qsizetype{4} * wanted.width() * wanted.height()) {
                done({});
                return;
            }
            done(QImage(xcb_get_image_data(reply), wanted.width(), wanted.height(), QImage::Format_ARGB32_Premultiplied)
                     .copy());
        });
}

PictureScaler::Surface PictureScaler::makeSurface(QSize size) {
    auto* xcb = m_connection->xcb();
    const Surface surface{.pixmap = xcb_generate_id(xcb), .picture = xcb_generate_id(xcb)};
    quietly(xcb_create_pixmap_checked(xcb, ownDepth, surface.pixmap, m_connection->root(),
                                      static_cast<std::uint16_t>(size.width()),
                                      static_cast<std::uint16_t>(size.height())));
    quietly(xcb_render_create_picture_checked(xcb, surface.picture, surface.pixmap, m_ownFormat, 0, nullptr));
    return surface;
}

xcb_void_cookie_t PictureScaler::draw(xcb_render_picture_t from, const QRectF& part, xcb_render_picture_t onto,
                                      QSize size) {
    auto* xcb = m_connection->xcb();
    constexpr std::string_view filter = "bilinear";
    const xcb_render_transform_t transform{.matrix11 = fixed(part.width() / size.width()),
                                           .matrix12 = 0,
                                           .matrix13 = fixed(part.x()),
                                           .matrix21 = 0,
                                           .matrix22 = fixed(part.height() / size.height()),
                                           .matrix23 = fixed(part.y()),
                                           .matrix31 = 0,
                                           .matrix32 = 0,
                                           .matrix33 = fixed(1)};
    quietly(xcb_render_set_picture_transform_checked(xcb, from, transform));
    quietly(xcb_render_set_picture_filter_checked(xcb, from, static_cast<std::uint16_t>(filter.size()), filter.data(),
                                                  0, nullptr));
    return xcb_render_composite_checked(xcb, XCB_RENDER_PICT_OP_SRC, from, XCB_NONE, onto, 0, 0, 0, 0, 0, 0,
                                        static_cast<std::uint16_t>(size.width()),
                                        static_cast<std::uint16_t>(size.height()));
}

/// Windows vanish at any moment, and then so does all that is made of them.
void PictureScaler::quietly(xcb_void_cookie_t request) {
    xcb_discard_reply(m_connection->xcb(), request.sequence);
}

} // namespace fendrel
