import QtQuick
import Fendrel.Style

// The circle before something to do. A press ticks it off; another one, soon after, takes that back.
Item {
    id: tick

    required property CardColors ink
    required property string task // identifier
    required property string name // of what is to be done
    required property real size // pixels
    property bool isTicked: false

    signal toggled(on: bool)

    function press() {
        isTicked = !isTicked
        toggled(isTicked)
    }
    onTaskChanged: isTicked = false

    implicitWidth: size
    implicitHeight: size

    Accessible.role: Accessible.CheckBox
    Accessible.name: name
    Accessible.checkable: true
    Accessible.checked: isTicked
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()

    // One that could not be saved is still to be done.
    SequentialAnimation {
        running: tick.isTicked
        PauseAnimation { duration: 6000 }
        PropertyAction { target: tick; property: "isTicked"; value: false }
    }

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: tick.isTicked ? tick.ink.mark : Qt.rgba(0, 0, 0, 0)
        border { width: 1.5; color: tick.isTicked || hover.hovered ? tick.ink.mark : tick.ink.quiet }
        Behavior on color { ColorAnimation { duration: Theme.normal } }
    }
    Symbol {
        anchors.centerIn: parent
        name: "checkmark"
        size: parent.width - 3
        color: tick.isTicked ? tick.ink.top : tick.ink.mark
        opacity: tick.isTicked ? 1 : hover.hovered ? 0.6 : 0
        scale: tick.isTicked ? 1 : 0.6
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        Behavior on scale { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutBack } }
    }
    HoverHandler { id: hover; margin: 4; cursorShape: Qt.PointingHandCursor }
    TapHandler {
        margin: 4 // it is small
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: tick.press()
    }
}
