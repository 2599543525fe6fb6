#include "Platform/Linux/Banners/XfceBanners.h"

namespace fendrel {

Handle XfceBanners::read(const WaitUntil& deadline, ReadDone done) {
    return m_doNotDisturb.read(deadline, [done = std::move(done)](const std::optional<QVariant>& value) {
        if (!value)
            done({});
        else if (!value->isValid())
            done(Banners::shownByDefault);
        else
            done(value->toBool() ? Banners::quiet : Banners::shown);
    });
}

Handle XfceBanners::write(Banners banners, const WaitUntil& deadline, WriteDone done) {
    const QVariant value = banners == Banners::shownByDefault ? QVariant() : QVariant(banners == Banners::quiet);
    return m_doNotDisturb.write(value, deadline, std::move(done));
}

} // namespace fendrel
