#pragma once

#include "Platform/Linux/X11/PictureScaler.h"
#include "Platform/Linux/X11/SelectionOwner.h"
#include "Platform/Linux/X11/X11Windows.h"
#include "Ports/WindowPreviews.h"

#include <QHash>
#include <QImage>
#include <QObject>

#include <map>
#include <memory>

namespace fendrel {

/// Pictures of windows out of what the server keeps of each while a compositor runs. The windows that had the keyboard
/// last are kept in sight, so that something is known of them when they are minimised: that costs the server nothing as
/// long as they are on the screen.
class X11WindowPreviews : public QObject, public WindowPreviews {
    Q_OBJECT
public:
    X11WindowPreviews(std::shared_ptr<X11Windows> windows, const std::shared_ptr<X11Connection>& connection,
                      Clock& clock);
    ~X11WindowPreviews() override;

    bool isAvailable() const override;
    Handle follow(WindowID window, QSize size, Picture onPicture) override;

private:
    struct Frame { ///< the window itself or what the window manager put around it
        xcb_window_t window{};
        xcb_render_pictformat_t format{};
    };
    struct Followed {
        quint64 id{};
        xcb_window_t window{};
        QSize size{};
        Picture onPicture;
        Frame frame{};
        std::uint32_t damage{};
        bool isAsking{};
        bool hasChanged{};
        ContinuousTime last{};
        Handle wait;
    };
    struct Kept {
        xcb_window_t window{};
        Frame frame{};
        xcb_pixmap_t pixmap{};
        QSize size{};
    };

    void handle(const xcb_generic_event_t& event);
    std::optional<Frame> frameOf(xcb_window_t window);
    bool isSeen(xcb_window_t window) const;
    void begin(Followed& followed);
    void beginAgain(xcb_window_t window);
    void forgetFrame(Followed& followed);
    void askSoon(Followed& followed);
    Clock::Duration interval() const; ///< of each window's pictures, for as many as change now
    void ask(quint64 id);
    void take(quint64 id, const xcb_get_geometry_reply_t& frame);
    void keepActive();
    void keep(xcb_window_t window, const Frame& frame, QSize size);
    void release(xcb_window_t window);
    void releaseAll();
    void sizeDidChange(const xcb_configure_notify_event_t& now);
    void tellLast(Followed& followed);
    void takeKept(xcb_window_t window);
    void remember(xcb_window_t window, const QImage& picture);
    void forgetGone();

    std::shared_ptr<X11Windows> m_windows;
    X11Connection& m_connection;
    Clock& m_clock;
    PictureScaler m_scaler;
    SelectionOwner m_compositor;
    std::optional<std::uint8_t> m_damageEvent;
    bool m_hasComposite{};
    quint64 m_nextID{};
    std::map<quint64, Followed> m_followed;
    QList<Kept> m_kept;                  ///< the last one first
    QHash<xcb_window_t, Frame> m_frames; ///< those that were asked for; they change when a window gets another parent
    QHash<xcb_window_t, QImage> m_last;  ///< what was last seen of each
};

} // namespace fendrel
