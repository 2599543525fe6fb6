#pragma once

#include "Ports/Badges.h"

namespace fendrel {

class NullBadges final : public Badges {
public:
    AppBadge badge(const QString&) const override { return {}; }
};

} // namespace fendrel
