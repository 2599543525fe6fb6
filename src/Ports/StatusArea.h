#pragma once

#include <functional>

namespace fendrel {

/// The place on the desktop where programs show status icons. Main thread.
class StatusArea {
public:
    virtual ~StatusArea() = default;
    virtual bool isAvailable() const = 0;
    std::function<void()> onChanged = [] {};
};

} // namespace fendrel
