#pragma once

#include <functional>

namespace fendrel {

/// Whether Fendrel starts when its user logs in. Main thread.
class LoginItem {
public:
    virtual ~LoginItem() = default;
    virtual bool isOn() const = 0;
    virtual void set(bool on) = 0;
    std::function<void()> onChanged = [] {}; ///< by us, or by the user in the desktop's own settings
};

} // namespace fendrel
