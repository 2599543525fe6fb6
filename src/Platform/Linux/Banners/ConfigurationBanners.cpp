#include "Platform/Linux/Banners/ConfigurationBanners.h"

#include "Platform/Shared/AtNextTurn.h"

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

QString text(bool value) {
    return value ? u"true"_s : u"false"_s;
}

} // namespace

std::optional<Banners> ConfigurationBanners::now() const {
    const auto value = m_configuration->value(m_setting.key);
    if (!value)
        return {};
    if (*value == text(m_setting.isQuietWhen))
        return Banners::quiet;
    return m_configuration->isSet(m_setting.key) ? Banners::shown : Banners::shownByDefault;
}

Handle ConfigurationBanners::read(const WaitUntil& deadline, ReadDone done) {
    if (!deadline)
        return atNextTurn([this, done = std::move(done)] { done(now()); });
    done(now());
    return {};
}

Handle ConfigurationBanners::write(Banners banners, const WaitUntil& deadline, WriteDone done) {
    const bool isTaken =
        banners == Banners::shownByDefault
            ? m_configuration->reset(m_setting.key)
            : m_configuration->write(m_setting.key, text((banners == Banners::quiet) == m_setting.isQuietWhen));
    if (!deadline)
        return atNextTurn([done = std::move(done), isTaken] { done(isTaken); });
    done(isTaken && m_configuration->flush(*deadline));
    return {};
}

} // namespace fendrel
