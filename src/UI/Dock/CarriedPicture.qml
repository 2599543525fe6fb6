import QtQuick
import QtQuick.Window
import Fendrel.Style

// What the pointer carries, in a window of its own: it goes beyond the bar, and above everything.
Window {
    id: carried

    required property size area // of what is carried
    default property alias content: picture.data
    property string hint: "" // what letting go would do
    property bool isFading: false
    property point pointer: Qt.point(0, 0) // on the desktop

    flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.BypassWindowManagerHint | Qt.WindowTransparentForInput | Qt.WindowDoesNotAcceptFocus
    color: "transparent"
    width: Math.max(area.width, label.width) + 16
    height: area.height + 2 * (label.height + 8)
    x: Math.round(pointer.x - width / 2)
    y: Math.round(pointer.y - height / 2)

    Item {
        id: picture
        anchors.centerIn: parent
        width: carried.area.width
        height: carried.area.height
        opacity: carried.isFading ? 0.45 : 0.95
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
    Rectangle {
        id: label
        visible: carried.hint !== ""
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top }
        width: text.implicitWidth + 20
        height: 26
        radius: 8
        color: "#f0202127"
        border.width: 1
        border.color: "#26ffffff"

        Text {
            id: text
            anchors.centerIn: parent
            text: carried.hint
            textFormat: Text.PlainText
            color: "#f6f7f9"
            font.pixelSize: 12
            font.weight: Font.Medium
        }
    }
}
