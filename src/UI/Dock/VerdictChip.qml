import QtQuick
import Fendrel.Style
import Fendrel.Types

// What is in front and the mode that it belongs to. Pressed, it takes the user's correction.
DockItem {
    id: chip

    required property VerdictController verdict
    property real wordsRoom: 150 // pixels; longer words are cut
    property int size: 36
    readonly property real textScale: Math.min(Theme.textScale, (size - 4) / 28) // two lines fit

    implicitWidth: isVertical ? size : lengthWith(words.width)
    readonly property real frame: isVertical ? size : lengthWith(0) // without the words
    function lengthWith(text: real): real { return 12 + 9 + 9 + text + 14 }
    implicitHeight: size
    visible: verdict.isShown

    tipText: isVertical ? words.first + " · " + said + ". " + help : help
    readonly property string said: words.second + (verdict.certainty === "" ? "" : ", " + verdict.certainty)
    readonly property string help: qsTr("Not right? Click to tell Fendrel")

    Accessible.role: Accessible.Button
    Accessible.name: words.first + ", " + said
    Accessible.description: help

    Rectangle {
        anchors.fill: parent
        radius: 12
        color: chip.verdict.isElsewhere ? chip.colors.faded(chip.verdict.tint, chip.isHovered ? 0.24 : 0.16)
             : chip.isPressed ? chip.colors.pressed : chip.colors.hover
        border.width: chip.isHovered ? 1 : 0
        border.color: chip.colors.line
        Behavior on color { ColorAnimation { duration: Theme.normal } }
    }

    Rectangle {
        id: dot
        x: chip.isVertical ? (chip.width - width) / 2 : 12
        anchors.verticalCenter: parent.verticalCenter
        width: chip.isVertical ? 14 : 9
        height: width
        radius: width / 2
        // What nobody is certain of is an outline.
        color: chip.verdict.isCertain ? chip.verdict.tint : "transparent"
        border.width: chip.verdict.isCertain ? 0 : 2
        border.color: chip.verdict.tint

        SequentialAnimation on opacity {
            running: chip.verdict.isClassifying && !Theme.reducesMotion
            loops: Animation.Infinite
            NumberAnimation { to: 0.25; duration: 500 }
            NumberAnimation { to: 1; duration: 500 }
            onStopped: dot.opacity = 1
        }
    }

    Column {
        id: words
        readonly property string first: chip.verdict.what
        readonly property string second: chip.verdict.isClassifying ? qsTr("Judging…") : chip.verdict.modeName === "" ? qsTr("No mode") : chip.verdict.modeName

        visible: !chip.isVertical
        x: dot.x + dot.width + 9
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(chip.wordsRoom, Math.ceil(Math.max(top.implicitWidth, bottom.implicitWidth + sureness.implicitWidth)))

        Label {
            id: top
            colors: chip.colors
            text: words.first
            width: parent.width
            font.pixelSize: Math.round(12 * chip.textScale)
            font.weight: Font.DemiBold
        }
        Row {
            Label {
                id: bottom
                colors: chip.colors
                color: chip.verdict.isElsewhere ? chip.colors.tintText(chip.verdict.tint) : chip.colors.secondaryText
                text: words.second
                width: Math.min(Math.ceil(implicitWidth), words.width - sureness.width)
                font.pixelSize: Math.round(11 * chip.textScale)
            }
            Label {
                id: sureness
                colors: chip.colors
                color: chip.colors.secondaryText
                text: chip.verdict.certainty === "" ? "" : " · " + chip.verdict.certainty
                font.pixelSize: Math.round(11 * chip.textScale)
            }
        }
    }
}
