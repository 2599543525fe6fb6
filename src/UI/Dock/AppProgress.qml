import QtQuick
import Fendrel.Style

// How far an application is with what it does, over the foot of its icon.
Rectangle {
    id: bar

    required property color tint
    required property real progress // 0 to 1

    height: 7
    radius: 3.5
    color: "#e6202127"
    border.width: 1
    border.color: "#66ffffff"
    Accessible.ignored: true

    Rectangle {
        x: 1.5
        y: 1.5
        width: Math.max(height, (parent.width - 3) * bar.progress)
        height: parent.height - 3
        radius: height / 2
        color: Theme.increasesContrast ? "#ffffff" : Qt.lighter(bar.tint, 1.3)
        Behavior on width { NumberAnimation { duration: Theme.normal } }
    }
}
