#pragma once

#include "Platform/Linux/Banners/BannerSwitch.h"

namespace fendrel {

/// Plasma keeps banners away for programs that ask for it, and forgets a program's wish when that program ends.
class PlasmaBanners final : public BannerSwitch {
public:
    QString server() const override { return QStringLiteral("Plasma"); }
    Handle read(const WaitUntil& deadline, ReadDone done) override;
    Handle write(Banners banners, const WaitUntil& deadline, WriteDone done) override;

private:
    std::optional<uint> m_wish; ///< the number that ours has
};

} // namespace fendrel
