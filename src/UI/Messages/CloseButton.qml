import QtQuick
import Fendrel.Style

// The cross at a card's corner.
Item {
    id: button

    required property Colors colors
    required property string name

    signal pressed()

    implicitWidth: 28
    implicitHeight: 28
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.focusable: true
    Accessible.onPressAction: pressed()

    Keys.onSpacePressed: pressed()
    Keys.onReturnPressed: pressed()
    Keys.onEnterPressed: pressed()

    Rectangle {
        anchors.fill: parent
        radius: 14
        color: tap.pressed ? button.colors.pressed : hover.hovered ? button.colors.hover : "transparent"
    }
    Symbol {
        anchors.centerIn: parent
        name: "xmark"
        size: 15
        color: button.colors.secondaryText
    }
    FocusRing { target: button; targetRadius: 14; gap: 0 }
    HoverHandler { id: hover }
    TapHandler {
        id: tap
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: button.pressed()
    }
}
