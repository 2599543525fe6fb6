import QtQuick

// The colours of one window, light or dark.
QtObject {
    id: colors

    required property bool isDark
    property bool isClear: false // what lies behind shines through, and leaves nothing of quieter text

    readonly property color window: isDark ? "#1b1c20" : "#f5f5f7"
    readonly property color card: isDark ? "#26272c" : "#ffffff"
    readonly property bool isStrong: Theme.increasesContrast
    readonly property color text: isStrong ? (isDark ? "#ffffff" : "#000000") : isDark ? "#f3f4f6" : "#1c1d21"
    readonly property color secondaryText: isStrong || isClear ? text : isDark ? "#a7abb4" : "#5c606a"
    readonly property color line: isStrong ? (isDark ? "#b3ffffff" : "#b3000000") : isDark ? "#1fffffff" : "#1a000000"
    readonly property color hover: isStrong ? (isDark ? "#33ffffff" : "#24000000") : isDark ? "#14ffffff" : "#0d000000"
    readonly property color pressed: isStrong ? (isDark ? "#59ffffff" : "#47000000") : isDark ? "#24ffffff" : "#1a000000"
    // What tells a control from what lies below it, with a contrast of 3.
    readonly property color control: isStrong ? text : isDark ? "#777982" : "#8c8e96"
    readonly property color raised: isDark ? "#5f616b" : card // the one of several that is chosen
    readonly property color field: isDark ? "#1f2025" : "#f3f4f6"
    readonly property color accent: "#1f6fe5"
    readonly property color grave: isDark ? "#ff7b6e" : "#c8281e" // what loses something
    readonly property color well: isDark ? "#62c985" : "#1b7339"
    readonly property color warning: isDark ? "#f5b13d" : "#a15c00"

    // Text or symbols on a filled tint: white, or black where white would have a contrast below 4.5.
    function onTint(tint: color): color {
        return luminance(tint) > 0.18 ? "#000000" : "#ffffff"
    }

    // The tint as text or symbol on this window's background: shifted until it can be read.
    function tintText(tint: color): color {
        if (isStrong)
            return isDark ? Qt.lighter(tint, 1.6) : Qt.darker(tint, 1.9)
        return isDark ? Qt.lighter(tint, 1.25) : Qt.darker(tint, 1.18)
    }

    function faded(base: color, opacity: real): color {
        return Qt.rgba(base.r, base.g, base.b, opacity)
    }

    // Relative luminance as WCAG 2 defines it.
    function luminance(base: color): real {
        const linear = channel => channel <= 0.03928 ? channel / 12.92 : Math.pow((channel + 0.055) / 1.055, 2.4)
        return 0.2126 * linear(base.r) + 0.7152 * linear(base.g) + 0.0722 * linear(base.b)
    }
}
