import QtQuick
import Fendrel.Style

// What a card is written with. Its palette is made from the accent of its kind: paper with a breath of it, and ink that can be read on
// all of that.
QtObject {
    id: palette

    required property Colors colors
    required property color accent
    required property int textSize // pixels
    property int leastTextSize: textSize

    readonly property int line: Math.ceil(textSize * 1.27) // the height of one
    readonly property bool isDark: colors.isDark
    readonly property bool isStrong: colors.isStrong

    readonly property color top: isStrong ? colors.card : mixed(isDark ? "#383941" : "#ffffff", accent, isDark ? 0.12 : 0.025)
    readonly property color bottom: isStrong ? colors.card : mixed(isDark ? "#292a30" : "#fbfbfd", accent, isDark ? 0.2 : 0.13)
    readonly property color edge: isStrong ? colors.text : isDark ? "#1cffffff" : colors.faded(mixed("#000000", accent, 0.5), 0.2)
    readonly property color text: isStrong ? colors.text : mixed(isDark ? "#f7f8fa" : "#15161a", accent, isDark ? 0 : 0.12)
    readonly property color quiet: isStrong ? text : readable(mixed(isDark ? "#b9bcc6" : "#5b5f6a", accent, 0.12))
    readonly property color mark: readable(accent)

    readonly property color good: readable(isDark ? "#5fd08c" : "#1b8748")
    readonly property color busy: readable(isDark ? "#f5b44a" : "#b06a00")
    readonly property color bad: readable(isDark ? "#ff8078" : "#cf352c")
    function tone(name: string): color { // of text and symbols
        return name === "good" ? good : name === "busy" ? busy : name === "bad" ? bad : quiet
    }
    readonly property var dots: ({
        good: shifted(isDark ? "#5fd08c" : "#22a35a", 3.1), busy: shifted(isDark ? "#f5b44a" : "#d97706", 3.1),
        bad: shifted(isDark ? "#ff8078" : "#e5484d", 3.1), neutral: shifted(mixed(quiet, bottom, 0.4), 3.1)
    })

    function mixed(base: color, other: color, share: real): color {
        const from = Qt.color(base) // as text it may come here, too
        return Qt.rgba(from.r + (other.r - from.r) * share, from.g + (other.g - from.g) * share, from.b + (other.b - from.b) * share, 1)
    }

    function readable(tint: color): color { return shifted(tint, 4.6) }
    // Towards the ink as far as it takes.
    function shifted(tint: color, least: real): color {
        for (let share = 0; share < 1; share += 0.05) {
            const candidate = mixed(tint, text, share)
            if (contrast(candidate, top) >= least && contrast(candidate, bottom) >= least)
                return candidate
        }
        return text
    }
    function contrast(one: color, other: color): real {
        const [first, second] = [colors.luminance(one) + 0.05, colors.luminance(other) + 0.05]
        return Math.max(first, second) / Math.min(first, second)
    }
}
