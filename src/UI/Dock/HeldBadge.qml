import QtQuick
import Fendrel.Style

// How many messages are held, at a mode's corner, or what an application has to tell, at its icon's. The ring in the
// bar's colour keeps it apart from a pill of its tint.
Rectangle {
    id: badge

    required property Colors colors
    required property color tint
    required property color ring
    required property int count
    property string note: "" // shown where there is nothing to count

    readonly property string wanted: count > 99 ? qsTr("99+") : count > 0 ? count : note
    property string text: "" // the last one, while it goes
    onWantedChanged: if (wanted !== "") text = wanted
    Component.onCompleted: text = wanted

    width: Math.max(height, Math.ceil(label.implicitWidth) + 10)
    height: 19
    radius: height / 2
    color: ring
    scale: wanted !== "" ? 1 : 0
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
