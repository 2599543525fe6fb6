#pragma once

#include <functional>

namespace fendrel {

/// How the user wants the desktop to look. Main thread.
class SystemLook {
public:
    virtual ~SystemLook() = default;
    virtual bool isDark() const = 0;
    virtual bool reducesMotion() const = 0;
    virtual bool increasesContrast() const = 0;
    virtual double textScale() const = 0; ///< factor on the size of text, 1 for the usual one
    std::function<void()> onChanged = [] {};
};

} // namespace fendrel
