import QtQuick
import Fendrel.Style

// The circle before something to do. A press on its line's height ticks it off; another one, soon after, takes that back.
Item {
    id: tick

    required property CardColors ink
    required property string name // of what is to be done
    required property real size // pixels
    required property bool isTicked

    signal toggled(on: bool)

    function press() { toggled(!isTicked) }

    implicitWidth: size

    Accessible.role: Accessible.CheckBox
    Accessible.name: name
    Accessible.checkable: true
    Accessible.checked: isTicked
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()

    Rectangle {
        anchors.centerIn: parent
        width: tick.size
        height: tick.size
        radius: width / 2
        color: tick.isTicked ? tick.ink.mark : Qt.rgba(0, 0, 0, 0)
        border { width: 1.5; color: tick.isTicked || hover.hovered ? tick.ink.mark : tick.ink.quiet }
        Behavior on color { ColorAnimation { duration: Theme.normal } }
    }
    Symbol {
        anchors.centerIn: parent
        name: "checkmark"
        size: tick.size - 3
        color: tick.isTicked ? tick.ink.top : tick.ink.mark
        opacity: tick.isTicked ? 1 : hover.hovered ? 0.6 : 0
        scale: tick.isTicked ? 1 : 0.6
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        Behavior on scale { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutBack } }
    }
    // It is small: what is beside it counts. Above and below are other lines.
    Item {
        anchors { fill: parent; leftMargin: -4; rightMargin: -4 }
        HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
        TapHandler {
            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: tick.press()
        }
    }
}
