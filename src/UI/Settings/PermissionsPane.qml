import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of what Fendrel may do on this system.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 18
}
