#include "Platform/Linux/X11/KeyMap.h"

#include <xkbcommon/xkbcommon.h>

namespace fendrel {

namespace {

xcb_keysym_t symbolOf(const QString& label) {
    const auto letters = label.toLower().toUcs4();
    if (letters.size() == 1)
        return xkb_utf32_to_keysym(letters.first());
    return xkb_keysym_from_name(label.toUtf8().constData(), XKB_KEYSYM_CASE_INSENSITIVE);
}

} // namespace

KeyMap::KeyMap(X11Connection& connection) {
    auto* xcb = connection.xcb();
    const auto* setup = xcb_get_setup(xcb);
    m_firstKey = setup->min_keycode;
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto keysAsked = xcb_get_keyboard_mapping(xcb, m_firstKey, count);
    const auto modifiersAsked = xcb_get_modifier_mapping(xcb);
    if (const auto keys = connection.reply<xcb_get_keyboard_mapping_reply>(keysAsked)) {
        const auto* symbols = xcb_get_keyboard_mapping_keysyms(keys.get());
        m_width = keys->keysyms_per_keycode;
        m_keys = {symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(keys.get())};
    }
    if (const auto modifiers = connection.reply<xcb_get_modifier_mapping_reply>(modifiersAsked)) {
        const auto* codes = xcb_get_modifier_mapping_keycodes(modifiers.get());
        m_modifierWidth = modifiers->keycodes_per_modifier;
        m_modifiers = {codes, codes + xcb_get_modifier_mapping_keycodes_length(modifiers.get())};
    }
}

std::optional<xcb_keycode_t> KeyMap::key(const QString& label) const {
    const xcb_keysym_t symbol = symbolOf(label);
    return symbol == XKB_KEY_NoSymbol ? std::nullopt : keyOf(symbol);
}

std::optional<xcb_keycode_t> KeyMap::keyOf(xcb_keysym_t symbol) const {
    // Columns stand for the levels of one layout, then of the next: the even ones among the first four are what is
    // printed on the keys.
    for (const qsizetype column : {0, 2, 1, 3}) {
        for (qsizetype index = column; column < m_width && index < m_keys.size(); index += m_width) {
            if (m_keys[index] == symbol)
                return static_cast<xcb_keycode_t>(m_firstKey + index / m_width);
        }
    }
    return {};
}

std::uint16_t KeyMap::modifier(xcb_keysym_t symbol) const {
    const auto code = keyOf(symbol);
    const qsizetype index = code ? m_modifiers.indexOf(*code) : -1;
    return index < 0 ? std::uint16_t{0} : static_cast<std::uint16_t>(1U << (index / m_modifierWidth));
}

} // namespace fendrel
