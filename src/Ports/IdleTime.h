#pragma once

#include <chrono>
#include <optional>

namespace fendrel {

class IdleTime {
public:
    virtual ~IdleTime() = default;
    /// Time since the user's last input of any kind; nothing when the system does not tell. Main thread.
    virtual std::optional<std::chrono::milliseconds> sinceLastInput() const = 0;
};

} // namespace fendrel
