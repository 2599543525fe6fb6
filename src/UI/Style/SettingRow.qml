import QtQuick

// A setting: its label, one sentence of help, and its control at the end, or below where the words would be cramped.
Item {
    id: row

    required property Colors colors
    required property string label
    required property string help
    property string problem: "" // takes the place of the help
    property string setting: "" // by which a search leads here
    default property alias control: slot.data

    readonly property int margin: 18
    readonly property bool isMirrored: LayoutMirroring.enabled
    readonly property bool isStacked: slot.width > 0 && width - slot.width - 3 * margin < 180 * Theme.textScale

    width: parent?.width ?? 0
    implicitHeight: 28 + (isStacked ? words.height + 12 + slot.height : Math.max(words.height, slot.height))
    height: implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: label
    Accessible.description: problem === "" ? help : problem

    // Shows where a search has led.
    function glow() {
        shine.opacity = 1
        fade.restart()
    }

    Rectangle {
        id: shine
        anchors { fill: parent; margins: 4 }
        radius: Theme.radius
        color: row.colors.faded(row.colors.accent, 0.14)
        border.width: 1
        border.color: row.colors.accent
        opacity: 0
        SequentialAnimation {
            id: fade
            PauseAnimation { duration: 1600 }
            NumberAnimation { target: shine; property: "opacity"; to: 0; duration: Theme.slow }
        }
    }
    Column {
        id: words
        anchors { left: parent.left; leftMargin: row.margin }
        y: row.isStacked ? 14 : (row.height - height) / 2
        width: row.width - 2 * row.margin - (row.isStacked || slot.width === 0 ? 0 : slot.width + row.margin)
        spacing: 3
        Label {
            colors: row.colors
            text: row.label
            font.weight: Font.Medium
            width: parent.width
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            colors: row.colors
            color: row.problem === "" ? row.colors.secondaryText : row.colors.warning
            text: row.problem === "" ? row.help : row.problem
            visible: text !== ""
            font.pixelSize: Theme.textHelp
            wrapMode: Text.Wrap
            width: parent.width
            Accessible.ignored: true
        }
    }
    SettingSlot {
        id: slot
        room: row.width - 2 * row.margin
        x: row.isStacked !== row.isMirrored ? row.margin : row.width - width - row.margin
        y: row.isStacked ? words.y + words.height + 12 : (row.height - height) / 2
    }
    Rectangle {
        anchors { left: parent.left; leftMargin: row.margin; right: parent.right; bottom: parent.bottom }
        height: 1
        color: row.colors.line
        visible: row.parent !== null && row.y + row.height < row.parent.height // something comes below
    }
}
