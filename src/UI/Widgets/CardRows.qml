import QtQuick
import Fendrel.Style

// As many lines of a list as there is room for. A line that leads somewhere can be pressed.
Column {
    id: list

    required property CardColors ink
    required property var rows
    property bool isNarrow: false // the few characters stand below the title
    property bool hasValues: width >= 140 * Math.max(1, Theme.textScale)

    signal pressed(address: url)

    readonly property int entryHeight: isNarrow ? 2 * ink.line + 4 : ink.line
    readonly property int fitting: Math.max(0, Math.floor((height + 4) / entryHeight))

    FontMetrics {
        id: metrics
        font.pixelSize: list.ink.textSize
    }
    Repeater {
        model: Math.min(list.rows.length, list.fitting)
        Item {
            id: entry
            required property int index
            readonly property var row: list.rows[index]
            readonly property bool isOpenable: row.address.toString() !== ""
            readonly property bool isColored: row.tone !== "neutral"
            readonly property bool hasSymbol: row.symbol !== "" && !(list.isNarrow && isColored) // then its number is colored
            readonly property bool hasDot: row.symbol === "" && isColored
            readonly property real signY: list.isNarrow ? lineHeight : 0 // beside the few characters, and the title has the whole line
            // Titles begin below one another, unless no line has anything before it.
            readonly property int start: list.isNarrow ? (hasSymbol ? 13 : hasDot ? 9 : 0) : list.hasSigns ? 14 : 0
            readonly property real lineHeight: list.isNarrow ? list.ink.line : height
            readonly property string value: row.value === "" && list.isNarrow ? row.detail : row.value
            readonly property bool hasValue: value !== "" && (list.isNarrow || list.hasValues)

            width: list.width
            height: Math.min(list.entryHeight + 2, list.height / Math.max(1, Math.min(list.rows.length, list.fitting)))

            Rectangle {
                anchors { fill: parent; leftMargin: -4; rightMargin: -4 }
                radius: 5
                color: list.ink.text
                opacity: press.pressed ? 0.16 : hover.hovered ? 0.08 : 0
                Behavior on opacity { NumberAnimation { duration: Theme.quick } }
            }
            Symbol {
                anchors { left: parent.left; top: parent.top; topMargin: entry.signY + (entry.lineHeight - height) / 2 }
                visible: entry.hasSymbol
                name: entry.row.symbol
                size: 10
                color: entry.row.tone === "neutral" ? list.ink.mark : list.ink.tone(entry.row.tone)
            }
            Rectangle {
                anchors { left: parent.left; leftMargin: list.isNarrow ? 0 : 2; top: parent.top; topMargin: entry.signY + (entry.lineHeight - height) / 2 }
                visible: entry.hasDot
                width: 6
                height: 6
                radius: 3
                color: list.ink.dots[entry.row.tone]
            }
            CardLabel {
                id: title
                anchors {
                    left: parent.left; leftMargin: list.isNarrow ? 0 : entry.start
                    right: !list.isNarrow && entry.hasValue ? amount.left : parent.right; rightMargin: !list.isNarrow && entry.hasValue ? 8 : 0
                    top: parent.top
                }
                height: entry.lineHeight
                ink: list.ink
                text: entry.row.title
            }
            CardLabel {
                id: amount
                anchors { right: parent.right; top: list.isNarrow ? title.bottom : parent.top }
                width: list.isNarrow ? parent.width - entry.start : Math.ceil(metrics.advanceWidth(entry.value))
                height: entry.lineHeight
                visible: entry.hasValue
                ink: list.ink
                color: list.isNarrow && entry.row.symbol !== "" && entry.isColored ? list.ink.tone(entry.row.tone) : list.ink.quiet
                text: entry.value
                fontSizeMode: list.isNarrow ? Text.HorizontalFit : Text.FixedSize
            }

            HoverHandler { id: hover; enabled: entry.isOpenable }
            TapHandler {
                id: press
                enabled: entry.isOpenable
                gesturePolicy: TapHandler.ReleaseWithinBounds
                onTapped: list.pressed(entry.row.address)
            }
        }
    }

    readonly property bool hasSigns: rows.slice(0, fitting).some(row => row.symbol !== "" || row.tone !== "neutral")
}
