#pragma once

#include "Base/Handle.h"
#include "Ports/Accessibility.h"

#include <QImage>
#include <QSize>

#include <functional>

namespace fendrel {

/// Live pictures of other applications' windows. Main thread; nothing of it blocks.
class WindowPreviews {
public:
    using Picture = std::function<void(const QImage& picture)>;

    virtual ~WindowPreviews() = default;

    virtual bool isAvailable() const = 0; ///< whether the system lets windows be seen that others cover
    std::function<void()> onAvailabilityChanged = [] {};

    /// Follows what a window shows, scaled down to fit into `size` (device pixels): a picture soon, and a new one at
    /// most ten times a second while its content changes. A window that is minimised gives what was last seen of it,
    /// or no picture at all.
    virtual Handle follow(WindowID window, QSize size, Picture onPicture) = 0;
};

} // namespace fendrel
