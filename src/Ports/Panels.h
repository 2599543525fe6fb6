#pragma once

#include <QRect>
#include <QRegion>
#include <Qt>

#include <functional>

namespace fendrel {

/// What the window system must know of our own panels beyond what the toolkit tells it. Windows are named by their
/// native id. Main thread; all coordinates are device pixels.
class Panels {
public:
    enum class Kind {
        dock, ///< on every virtual desktop, never takes the keyboard
        gate, ///< on the virtual desktop where it opens, above full-screen windows; docks stay above it where they can
        menu, ///< open for a moment, over everything; draws its own shadow
        glow, ///< lies over everything on every virtual desktop, for the eye alone: takes neither pointer nor keyboard
        card, ///< on every virtual desktop, above full-screen windows, under docks where it can; never takes the
              ///< keyboard
    };

    virtual ~Panels() = default;

    virtual void prepare(quintptr window, Kind kind) = 0; ///< before the window is shown for the first time
    /// Keeps other windows off `area`, a strip along one edge of `display`; an empty area reserves nothing.
    virtual void reserve(quintptr window, Qt::Edge edge, const QRect& display, const QRect& area) = 0;
    virtual void setInputRegion(quintptr window, const QRegion& region) = 0; ///< in the window's coordinates
    /// What lies behind this part of the window is seen blurred, where that can be done; an empty region ends it. In
    /// the window's coordinates.
    virtual void setBlurRegion(quintptr window, const QRegion& region) = 0;
    virtual void activate(quintptr window) = 0; ///< in front of everything, with the keyboard

    virtual bool hasTransparency() const = 0;            ///< whether a compositor blends windows
    virtual bool canBlur() const = 0;                    ///< whether it also blurs what lies behind them
    std::function<void()> onTransparencyChanged = [] {}; ///< or what it can do
};

} // namespace fendrel
