import QtQuick
import Fendrel.Style

// How much of something is gone.
Item {
    id: gauge

    required property CardColors ink
    required property real share // from 0 to 1

    implicitHeight: 4
    property bool isThere: false
    Component.onCompleted: isThere = true
    property real shown: share
    Behavior on shown { enabled: gauge.isThere; NumberAnimation { duration: Theme.slow; easing.type: Easing.OutCubic } }

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: gauge.ink.text
        opacity: 0.14
    }
    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: Math.max(height, Math.round(parent.width * gauge.shown))
        radius: height / 2
        color: gauge.ink.mark
    }
}
