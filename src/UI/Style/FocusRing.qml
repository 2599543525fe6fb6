import QtQuick

// Shows where the keyboard is.
Rectangle {
    required property Item target
    property color ringColor: "#2f7df0"
    property real targetRadius: Theme.radiusSmall
    property int gap: 3

    anchors.fill: target
    anchors.margins: -gap
    radius: targetRadius + gap
    color: "transparent"
    border.width: 2
    border.color: ringColor
    visible: target.activeFocus
}
