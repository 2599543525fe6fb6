import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of the dock's look.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors
    readonly property Preferences preferences: settings.preferences

    width: parent.width
    spacing: 18

    Flow {
        width: parent.width
        spacing: 14
        Repeater {
            model: page.settings.presets
            LookCard {
                required property var modelData
                colors: page.colors
                look: modelData
                onChosen: page.settings.choosePreset(modelData.name)
            }
        }
    }
    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Match light and dark mode")
            help: qsTr("The dock has a look of its own for each, and changes with the desktop.")
            Toggle { colors: page.colors; name: qsTr("Match light and dark mode"); isOn: page.preferences.matchSystem; onToggled: on => page.preferences.matchSystem = on }
        }
    }
}
