import QtQuick

// Shows where the keyboard is.
Rectangle {
    required property Item target
    property color ringColor: "#2f7df0"
    property real targetRadius: Theme.radiusSmall

    anchors.fill: target
    anchors.margins: -3
    radius: targetRadius + 3
    color: "transparent"
    border.width: 2
    border.color: ringColor
    visible: target.activeFocus
}
