#pragma once

#include "Platform/Linux/Banners/BannerSwitch.h"
#include "Platform/Linux/Desktop/DesktopConfiguration.h"

#include <memory>

namespace fendrel {

/// A notification server whose banners hang on a boolean of the desktop's configuration.
class ConfigurationBanners final : public BannerSwitch {
public:
    struct Setting {
        QString server{};
        ConfigurationKey key{};
        bool isQuietWhen{}; ///< the value with which banners stay away
    };

    ConfigurationBanners(Setting setting, std::shared_ptr<DesktopConfiguration> configuration)
        : m_setting(std::move(setting)), m_configuration(std::move(configuration)) {}

    QString server() const override { return m_setting.server; }
    Handle read(const WaitUntil& deadline, ReadDone done) override;
    Handle write(Banners banners, const WaitUntil& deadline, WriteDone done) override;

private:
    std::optional<Banners> now() const;

    Setting m_setting;
    std::shared_ptr<DesktopConfiguration> m_configuration;
};

} // namespace fendrel
