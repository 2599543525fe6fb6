#pragma once

#include "Platform/Linux/Banners/BannerSwitch.h"
#include "Platform/Linux/Desktop/XfconfProperty.h"

namespace fendrel {

/// Xfce's "do not disturb".
class XfceBanners final : public BannerSwitch {
public:
    QString server() const override { return QStringLiteral("Xfce Notify Daemon"); }
    Handle read(const WaitUntil& deadline, ReadDone done) override;
    Handle write(Banners banners, const WaitUntil& deadline, WriteDone done) override;

private:
    const XfconfProperty m_doNotDisturb{QStringLiteral("xfce4-notifyd"), QStringLiteral("/do-not-disturb")};
};

} // namespace fendrel
