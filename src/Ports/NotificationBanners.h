#pragma once

namespace fendrel {

/// The banners by which the desktop shows notifications. Main thread.
class NotificationBanners {
public:
    virtual ~NotificationBanners() = default;

    /// Keeps the desktop's banners away, or gives back what the user had. Does nothing where the desktop has no way.
    /// Quieted banners come back when this goes, and at the next start if the program was killed meanwhile.
    virtual void setQuiet(bool isQuiet) = 0;
};

} // namespace fendrel
