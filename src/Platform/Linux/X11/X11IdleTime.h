#pragma once

#include "Platform/Linux/X11/X11Connection.h"
#include "Ports/IdleTime.h"

#include <memory>

namespace fendrel {

/// Asks the server's screen saver, which counts from the last input of any device.
class X11IdleTime : public IdleTime {
public:
    explicit X11IdleTime(std::shared_ptr<X11Connection> connection);

    std::optional<std::chrono::milliseconds> sinceLastInput() const override;

private:
    std::shared_ptr<X11Connection> m_connection;
    bool m_isSupported{};
};

} // namespace fendrel
