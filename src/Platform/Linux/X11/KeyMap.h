#pragma once

#include "Platform/Linux/X11/X11Connection.h"

#include <QString>

namespace fendrel {

/// Which keys of the keyboard carry which labels, and which modifiers, as it is laid out now.
class KeyMap {
public:
    explicit KeyMap(X11Connection& connection);

    /// The key with this label: without modifiers, if there is one, else with some. Nothing when no key has it.
    std::optional<xcb_keycode_t> key(const QString& label) const;

    /// What is printed on a key: a letter or sign as a capital, else a name, such as "F3" or "Page Up". Empty for a key
    /// that says nothing, or is a modifier.
    QString label(std::uint32_t key) const;

    /// The bit of events and grabs for the modifier that this key is; 0 when the layout has none.
    std::uint16_t modifier(xcb_keysym_t symbol) const;

private:
    std::optional<xcb_keycode_t> keyOf(xcb_keysym_t symbol) const;

    xcb_keycode_t m_firstKey{};
    qsizetype m_width{};         ///< symbols a key
    QList<xcb_keysym_t> m_keys;  ///< of the first key, of the next one, ...
    qsizetype m_modifierWidth{}; ///< keys a modifier
    QList<xcb_keycode_t> m_modifiers;
};

} // namespace fendrel
