#pragma once

#include "Base/Handle.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace fendrel {

/// Keys that reach Fendrel whatever is in front. Main thread.
class HotKeys {
public:
    /// The bits of a combination's modifiers.
    enum Modifier { command = 256, shift = 512, option = 2048, control = 4096 };

    virtual ~HotKeys() = default;

    /// Takes a combination for as long as the handle lives, whatever lock keys are on. `key` is the label of the key
    /// without modifiers: "F", "1", "F3". Nothing when another program holds it or there is no such key.
    virtual std::optional<Handle> grab(int modifiers, const QString& key, std::function<void()> onPressed) = 0;

    /// For `onPressed` of what takes the keyboard: until the key is let go of, the keyboard is the hot key's.
    virtual void yieldKeyboard() = 0;

    /// The label of the key that a key event of this system came from, as `grab` takes it, whatever modifiers were
    /// held. Empty for a key that has none.
    virtual QString label(std::uint32_t nativeScanCode) const = 0;
};

} // namespace fendrel
