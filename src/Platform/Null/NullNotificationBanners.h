#pragma once

#include "Ports/NotificationBanners.h"

namespace fendrel {

class NullNotificationBanners final : public NotificationBanners {
public:
    void setQuiet(bool) override {}
};

} // namespace fendrel
