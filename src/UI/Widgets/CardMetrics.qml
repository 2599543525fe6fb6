import QtQuick
import Fendrel.Style

// How large cards are. They are as deep as the bar lets them be, and get longer with larger text.
QtObject {
    // Below this nobody can read it. A name that is cut can be read even less, so that narrow cards go down to here,
    // which no size of text for views does.
    readonly property int leastTextSize: 9

    readonly property real growth: 1 + 0.6 * Math.max(0, Theme.textScale - 1)

    function length(size: string, extent: real, isVertical: bool): real {
        const shape = size === "large" ? 4.6 : size === "medium" ? 2.4 : 1
        return Math.round(extent * shape * (shape > 1 ? growth : 1))
    }

    // As large as the user wants it, as long as two lines of it fit, or a short word across a vertical bar.
    function textSize(extent: real, isVertical: bool): int {
        return Math.min(Theme.textSmall, isVertical ? Math.round(extent * 0.23) : Math.floor((extent - 2 * padding(extent)) / 2.54))
    }
    function padding(extent: real): int { return Math.max(5, Math.min(12, Math.round(extent * 0.13))) }
    function radius(extent: real): int { return Math.round(Math.min(16, extent * 0.22)) }
}
