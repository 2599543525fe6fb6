#pragma once

#include "Platform/Linux/Banners/BannerSwitch.h"

namespace fendrel {

/// Dunst pauses: what arrives meanwhile waits in its queue. It forgets that when it ends.
class DunstBanners final : public BannerSwitch {
public:
    QString server() const override { return QStringLiteral("dunst"); }
    Handle read(const WaitUntil& deadline, ReadDone done) override;
    Handle write(Banners banners, const WaitUntil& deadline, WriteDone done) override;
};

} // namespace fendrel
