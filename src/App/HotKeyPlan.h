#pragma once

#include "App/PreferenceTypes.h"

#include <QList>
#include <QString>

#include <optional>

namespace fendrel {

/// What a hot key does. `index` counts from 0, and belongs to modes and applications alone.
struct HotKeyAction {
    enum class Kind { switchMode, toggleFocus, focusDock, openApp };
    Kind kind{};
    int index{};
    bool operator==(const HotKeyAction&) const = default;
};

/// A combination and what it does.
struct HotKey {
    HotKeyAction action{};
    int modifiers{};
    QString key{};
    bool operator==(const HotKey&) const = default;

    bool hasSameKeys(const HotKey& other) const {
        return modifiers == other.modifiers && key.compare(other.key, Qt::CaseInsensitive) == 0;
    }
};

/// Which hot keys there are to be.
struct HotKeyPlan {
    /// One that the user asked for, and what has its combination already.
    struct Clash {
        HotKeyAction action{};
        HotKeyAction winner{};
        bool operator==(const Clash&) const = default;
    };
    QList<HotKey> keys{};
    QList<Clash> clashes{};
    bool operator==(const HotKeyPlan&) const = default;
};

/// What the settings ask for, and for how many modes and applications.
struct HotKeyWishes {
    std::optional<Shortcut> focus{};
    std::optional<Shortcut> dock{};
    int modeModifiers{}; ///< 0: none; shift alone gives none either
    int appModifiers{};  ///< likewise
    int modes{};
    int apps{};
};

/// A combination does one thing. Modes come first, because their labels are the most seen; applications, which come and
/// go by themselves, come last. Between digits of modes and of applications there is no clash to tell of: where both
/// have the same modifiers, applications have no hot keys.
HotKeyPlan hotKeyPlan(const HotKeyWishes& wishes);

/// Whether somebody who types would set off such a hot key: it has no modifier but shift, and is no function key.
bool getsInTheWay(int modifiers, const QString& key);

} // namespace fendrel
