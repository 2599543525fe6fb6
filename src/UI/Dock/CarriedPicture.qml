import QtQuick
import QtQuick.Window
import Fendrel.Style

// The icon that the pointer carries, in a window of its own: it goes beyond the bar, and above everything.
Window {
    id: carried

    property string icon: ""
    property int size: 46 // pixels
    property string hint: "" // what letting go would do
    property bool isFading: false
    property point pointer: Qt.point(0, 0) // on the desktop

    flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.BypassWindowManagerHint | Qt.WindowTransparentForInput | Qt.WindowDoesNotAcceptFocus
    color: "transparent"
    width: Math.max(size, label.width) + 16
    height: size + 2 * (label.height + 8)
    x: Math.round(pointer.x - width / 2)
    y: Math.round(pointer.y - height / 2)

    AppPicture {
        anchors.fill: undefined
        anchors.centerIn: parent
        width: carried.size
        height: carried.size
        source: carried.icon
        size: carried.size
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
