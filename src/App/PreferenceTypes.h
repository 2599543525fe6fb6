#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <optional>

namespace fendrel::preferences {
Q_NAMESPACE

enum class DockSize { small, medium, large };
Q_ENUM_NS(DockSize)

enum class DockPosition { bottom, left, right };
Q_ENUM_NS(DockPosition)

enum class DockDisplay { main, active, all };
Q_ENUM_NS(DockDisplay)

enum class Strictness { gentle, balanced, strict };
Q_ENUM_NS(Strictness)

} // namespace fendrel::preferences

namespace fendrel {

using preferences::DockDisplay;
using preferences::DockPosition;
using preferences::DockSize;
using preferences::Strictness;

/// The bits of a modifier mask, as hot keys store them.
namespace modifier {
inline constexpr int command = 256;
inline constexpr int shift = 512;
inline constexpr int option = 2048;
inline constexpr int control = 4096;
} // namespace modifier

/// The symbols of a mask, always in the order control, option, shift, command.
QString modifierSymbols(int modifiers);

/// A key combination.
struct Shortcut {
    int keyCode{};   ///< hardware virtual key code
    int modifiers{}; ///< mask of the bits in `modifier`
    QString key{};   ///< printable label of the key, such as "F"
    bool operator==(const Shortcut&) const = default;

    QString label() const { return modifierSymbols(modifiers) + key; }
};

/// The stored form: a JSON object of exactly the three fields, or null for no shortcut.
QByteArray toJson(const std::optional<Shortcut>& shortcut);
/// Nothing for null and for whatever does not decode: the hot key is then off.
std::optional<Shortcut> shortcutFromJson(const QByteArray& json);

} // namespace fendrel
