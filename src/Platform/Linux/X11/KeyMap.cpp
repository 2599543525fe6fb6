#include "Platform/Linux/X11/KeyMap.h"

#include <xkbcommon/xkbcommon.h>

#include <array>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

xcb_keysym_t symbolOf(const QString& label) {
    const auto letters = label.toLower().toUcs4();
    if (letters.size() == 1)
        return xkb_utf32_to_keysym(letters.first());
    const QByteArray name = QString(label).replace(u' ', u'_').toUtf8();
    return xkb_keysym_from_name(name.constData(), XKB_KEYSYM_CASE_INSENSITIVE);
}

QString labelOf(xcb_keysym_t symbol) {
    const bool isModifier = symbol >= XKB_KEY_Shift_L && symbol <= XKB_KEY_Hyper_R;
    const bool isShifter = symbol >= XKB_KEY_ISO_Lock && symbol <= XKB_KEY_ISO_Level5_Lock;
    if (symbol == XKB_KEY_NoSymbol || isModifier || isShifter)
        return {};
    switch (symbol) { // the library's names for them are not what people say
    case XKB_KEY_Page_Up:
        return u"Page Up"_s;
    case XKB_KEY_Page_Down:
        return u"Page Down"_s;
    case XKB_KEY_space:
        return u"Space"_s;
    default:
        break;
    }
    const char32_t sign = xkb_keysym_to_utf32(symbol);
    if (sign > U' ' && sign != U'\x7f')
        return sign == U'ß' ? u"ß"_s : QString::fromUcs4(&sign, 1).toUpper();
    std::array<char, 64> name{};
    if (xkb_keysym_get_name(symbol, name.data(), name.size()) <= 0)
        return {};
    return QString::fromUtf8(name.data()).replace(u'_', u' ');
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

QString KeyMap::label(std::uint32_t key) const {
    const qsizetype index = (static_cast<qsizetype>(key) - m_firstKey) * m_width;
    return index < 0 || index >= m_keys.size() ? QString() : labelOf(m_keys[index]);
}

std::uint16_t KeyMap::modifier(xcb_keysym_t symbol) const {
    const auto code = keyOf(symbol);
    const qsizetype index = code ? m_modifiers.indexOf(*code) : -1;
    return index < 0 ? std::uint16_t{0} : static_cast<std::uint16_t>(1U << (index / m_modifierWidth));
}

} // namespace fendrel
