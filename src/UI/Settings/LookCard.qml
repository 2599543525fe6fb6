import QtQuick
import Fendrel.Style
import Fendrel.Types

// A look of the dock, drawn small.
RadioItem {
    id: card

    required property Colors colors
    property alias look: picture.look
    property alias isBlurred: picture.isBlurred

    implicitHeight: caption.y + caption.height
    height: implicitHeight

    Rectangle {
        anchors { fill: picture; margins: -3 }
        radius: picture.radius + 3
        color: "transparent"
        border.width: 2
        border.color: card.isChosen ? card.colors.accent : card.isHovered ? card.colors.faded(card.colors.text, 0.3) : "transparent"
    }
    LookPreview {
        id: picture
        width: parent.width
        height: Math.round(width * 0.6)
        radius: 10
    }
    Label {
        id: caption
        anchors { top: picture.bottom; topMargin: 8 }
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        colors: card.colors
        text: card.label
        font.pixelSize: Theme.textHelp
        font.weight: card.isChosen ? Font.DemiBold : Font.Normal
        Accessible.ignored: true
    }
    FocusRing { target: picture; targetRadius: picture.radius; gap: 6; visible: card.activeFocus && !card.isPointed }
}
