import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of what concerns all of the program.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors
    readonly property Preferences preferences: settings.preferences

    width: parent?.width ?? 0
    spacing: 18
    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Strictness")
            help: [qsTr("Switching modes during focus never waits."), qsTr("Switching modes during focus waits as long as the mode says."), qsTr("Modes with a wait take at least half a minute to enter during focus.")][page.preferences.strictness]
            Choice {
                colors: page.colors
                name: qsTr("Strictness")
                labels: [qsTr("Gentle"), qsTr("Balanced"), qsTr("Strict")]
                current: page.preferences.strictness
                onChosen: index => page.preferences.strictness = index
            }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Tidy up when switching")
            help: qsTr("Hides the applications that don't belong to the new mode.")
            Toggle { colors: page.colors; name: qsTr("Tidy up when switching"); isOn: page.preferences.tidyOnSwitch; onToggled: on => page.preferences.tidyOnSwitch = on }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Offer to send crash reports")
            help: qsTr("Asks after a crash, and opens your mail app with the report for you to read first.")
            Toggle { colors: page.colors; name: qsTr("Offer to send crash reports"); isOn: page.preferences.crashReports; onToggled: on => page.preferences.crashReports = on }
        }
    }
    MessageSettings {
        colors: page.colors
        settings: page.settings
    }
}
