import QtQuick
import Fendrel.Style

// The fine line between two sections of the dock.
Item {
    required property Colors colors
    required property bool isVertical

    readonly property int length: 9 // along the bar
    implicitWidth: isVertical ? 30 : length
    implicitHeight: isVertical ? length : 30

    Rectangle {
        anchors.centerIn: parent
        width: parent.isVertical ? parent.width : 1
        height: parent.isVertical ? 1 : parent.height
        color: parent.colors.line
    }
}
