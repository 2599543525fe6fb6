import QtQuick
import Fendrel.Style

// As many lines of a list as there is room for. A line that leads somewhere can be pressed.
Column {
    id: list

    required property CardColors ink
    required property var rows
    property var ticked: [] // identifiers
    property bool isNarrow: false // the few characters stand below the title
    property bool hasValues: width >= 140 * Math.max(1, Theme.textScale)

    signal pressed(address: url)
    signal toggled(task: string, on: bool)

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
            readonly property bool isTask: row.id !== ""
            readonly property bool isDone: isTask && list.ticked.includes(row.id)
            readonly property bool hasSymbol: row.symbol !== "" && !(list.isNarrow && (isColored || needsRoom)) // then its number is colored
            readonly property bool needsRoom: row.value !== "" && metrics.height > 0 && metrics.advanceWidth(row.value) * list.ink.leastTextSize > (list.width - 13) * list.ink.textSize
            readonly property bool hasDot: !isTask && row.symbol === "" && isColored
            readonly property real signY: list.isNarrow && !isTask ? lineHeight : 0 // beside the few characters, and the title has the whole line
            // Titles begin below one another, unless no line has anything before it.
            readonly property int start: list.isNarrow ? (isTask ? 14 : hasSymbol ? 13 : hasDot ? 9 : 0) : isTask ? 18 : list.hasSigns ? 14 : 0
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
            Loader {
                id: tick
                anchors { left: parent.left; top: parent.top }
                height: entry.lineHeight
                active: entry.isTask
                sourceComponent: TaskTick {
                    size: entry.lineHeight < 14 ? 10 : 12
                    ink: list.ink
                    name: entry.row.title
                    isTicked: entry.isDone
                    onToggled: on => list.toggled(entry.row.id, on)
                }
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
                    left: parent.left; leftMargin: list.isNarrow && !entry.isTask ? 0 : entry.start
                    right: !list.isNarrow && entry.hasValue ? amount.left : parent.right; rightMargin: !list.isNarrow && entry.hasValue ? 8 : 0
                    top: parent.top
                }
                readonly property bool fitsSmaller: metrics.height > 0 && metrics.advanceWidth(text) * list.ink.leastTextSize <= width * list.ink.textSize
                readonly property bool wraps: list.isNarrow && !entry.hasValue
                height: wraps ? 2 * entry.lineHeight : entry.lineHeight
                ink: list.ink
                text: entry.row.title
                wrapMode: wraps ? Text.WordWrap : Text.NoWrap
                maximumLineCount: wraps ? 2 : 1
                verticalAlignment: wraps ? Text.AlignTop : Text.AlignVCenter
                fontSizeMode: wraps || fitsSmaller ? Text.HorizontalFit : Text.FixedSize // cut, it would only be harder to read
                opacity: entry.isDone ? 0.5 : 1
                font.strikeout: entry.isDone
                Behavior on opacity { NumberAnimation { duration: Theme.normal } }
            }
            CardLabel {
                id: amount
                anchors { right: parent.right; rightMargin: list.isNarrow ? -4 : 0; top: list.isNarrow ? title.bottom : parent.top }
                width: list.isNarrow ? parent.width + 4 - (entry.isTask ? 0 : entry.start) : metrics.height > 0 ? Math.ceil(metrics.advanceWidth(entry.value)) + 1 : 0 // it is the height that tells of another font
                height: entry.lineHeight
                visible: entry.hasValue
                ink: list.ink
                color: (entry.isTask || (list.isNarrow && entry.row.symbol !== "")) && entry.isColored ? list.ink.tone(entry.row.tone) : list.ink.quiet
                text: entry.value
                fontSizeMode: list.isNarrow ? Text.HorizontalFit : Text.FixedSize
            }

            // The next one comes in the place of one that is done.
            readonly property string task: row.id
            onTaskChanged: if (isThere) arriving.restart()
            property bool isThere: false
            Component.onCompleted: isThere = true
            NumberAnimation { id: arriving; target: entry; property: "opacity"; from: 0.2; to: 1; duration: Theme.slow; easing.type: Easing.OutCubic }

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
