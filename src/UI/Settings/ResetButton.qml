import QtQuick
import Fendrel.Style
import Fendrel.Types

// Takes a pane's settings back to how they were at first.
Item {
    id: reset

    required property SettingsController settings
    required property Colors colors
    required property string pane

    width: parent?.width ?? 0
    implicitHeight: button.height

    PushButton {
        id: button
        anchors.right: parent.right
        width: Math.min(implicitWidth, parent.width)
        colors: reset.colors
        text: qsTr("Reset to Defaults…")
        symbol: "arrow.uturn.backward"
        onClicked: reset.settings.askToReset(reset.pane)
    }
}
