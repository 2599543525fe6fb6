import QtQuick
import Fendrel.Style

// A button in a card, which does something else than the card does.
Item {
    id: button

    required property CardColors ink
    required property string name // of what it does, for who can't see it
    property string text: ""
    property string symbol: "" // without a text, or where that has no room
    readonly property bool isSpelled: text !== "" && (symbol === "" || label.implicitWidth * ink.leastTextSize / ink.textSize <= width - 6)

    signal pressed()

    implicitHeight: ink.line + (text === "" ? 4 : 2)
    implicitWidth: text === "" ? implicitHeight : Math.ceil(label.implicitWidth) + Math.round(1.5 * ink.textSize)

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.onPressAction: pressed()

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: button.ink.mark
        opacity: button.text !== "" ? 1 : 0.16
        scale: tap.pressed ? 0.95 : 1
        Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
    }
    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: button.text !== "" ? button.ink.top : button.ink.mark
        opacity: tap.pressed ? 0.24 : hover.hovered ? 0.14 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
    CardLabel {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 6)
        ink: button.ink
        color: button.ink.top
        visible: button.isSpelled
        text: button.text
        font.weight: Font.DemiBold
        fontSizeMode: Text.HorizontalFit
    }
    Symbol {
        anchors.centerIn: parent
        visible: !button.isSpelled
        name: button.symbol
        size: Math.round(parent.height * 0.7)
        color: button.text !== "" ? button.ink.top : button.ink.mark
    }

    HoverHandler { id: hover; margin: 4; cursorShape: Qt.PointingHandCursor }
    TapHandler {
        id: tap
        margin: 4 // it is small
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: button.pressed()
    }
}
