import QtQuick
import Fendrel.Setup
import Fendrel.Style
import Fendrel.Types

// The pane of what Fendrel may do on this system.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 18

    Component.onCompleted: settings.permissions.refresh()
    // Back from a terminal or another program, where something may have been mended.
    Connections {
        target: Qt.application
        function onStateChanged() {
            if (Qt.application.state === Qt.ApplicationActive)
                page.settings.permissions.refresh()
        }
    }

    Label {
        colors: page.colors
        color: page.colors.secondaryText
        width: parent.width
        text: qsTr("What Fendrel makes use of on this computer. It works without any one of these, only with less.")
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    SettingsGroup {
        colors: page.colors
        Repeater {
            model: page.settings.permissions
            CapabilityRow {
                colors: page.colors
                permissions: page.settings.permissions
            }
        }
    }
}
