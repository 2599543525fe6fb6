#pragma once

#include "Platform/Linux/Desktop/DesktopConfiguration.h"

namespace fendrel {

class GSettingsConfiguration final : public DesktopConfiguration {
public:
    std::optional<QString> value(const ConfigurationKey& key) const override;
    bool isSet(const ConfigurationKey& key) const override;
    bool write(const ConfigurationKey& key, const QString& value) override;
    bool reset(const ConfigurationKey& key) override;
    bool flush(QDeadlineTimer deadline) override;
    Handle whenStored(std::function<void()> run) override;
    Handle watch(const ConfigurationKey& key, std::function<void()> run) override;
};

} // namespace fendrel
