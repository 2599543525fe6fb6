import QtQuick
import Fendrel.Style

// How many messages are held, at a mode's corner. The ring in the bar's colour keeps it apart from a pill of its tint.
Rectangle {
    id: badge

    required property Colors colors
    required property color tint
    required property color ring
    required property int count

    property string text: ""
    onCountChanged: if (count > 0) text = count > 99 ? qsTr("99+") : count
    Component.onCompleted: countChanged()

    width: Math.max(height, Math.ceil(label.implicitWidth) + 10)
    height: 19
    radius: height / 2
    color: ring
    scale: count > 0 ? 1 : 0
    visible: scale > 0
    Behavior on scale { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutBack } }
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        radius: height / 2
        color: badge.tint

        Text {
            id: label
            anchors.centerIn: parent
            text: badge.text
            color: badge.colors.onTint(badge.tint)
            font.pixelSize: 10
            font.weight: Font.Bold
            Accessible.ignored: true
        }
    }
}
