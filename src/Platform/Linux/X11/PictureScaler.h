#pragma once

#include "Platform/Linux/X11/X11Connection.h"

#include <QImage>
#include <QRect>

#include <xcb/render.h>

#include <functional>
#include <memory>
#include <optional>

namespace fendrel {

/// Small copies of what is on the server: it scales, so that only the copy travels. Main thread; nothing waits.
class PictureScaler {
public:
    explicit PictureScaler(std::shared_ptr<X11Connection> connection);

    bool isAvailable() const { return m_ownFormat != XCB_NONE; }
    xcb_render_pictformat_t format(xcb_visualid_t visual) const; ///< none for a visual that nobody knows

    /// A part of a pixmap, scaled down to fit into `size`. `done` gets nothing when the pixmap is none.
    void scale(xcb_pixmap_t pixmap, xcb_render_pictformat_t format, const QRect& part, QSize size,
               std::function<void(const QImage& picture)> done);

private:
    struct Surface {
        xcb_pixmap_t pixmap{};
        xcb_render_picture_t picture{};
    };

    Surface makeSurface(QSize size);
    xcb_void_cookie_t draw(xcb_render_picture_t from, const QRectF& part, xcb_render_picture_t onto, QSize size);
    void quietly(xcb_void_cookie_t request);

    std::shared_ptr<X11Connection> m_connection;
    xcb_render_pictformat_t m_ownFormat{};
};

} // namespace fendrel
