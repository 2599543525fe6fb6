import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of what concerns all of the program.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 18

    SettingsGroup {
        colors: page.colors
        title: qsTr("Focus")
        ChoiceRow {
            colors: page.colors
            settings: page.settings
            setting: "strictness"
            help: [qsTr("Switching modes during focus never waits."), qsTr("Switching modes during focus waits as long as the mode says."), qsTr("Modes with a wait take at least half a minute to enter during focus.")][page.settings.preferences.strictness]
            labels: [qsTr("Gentle"), qsTr("Balanced"), qsTr("Strict")]
        }
        ToggleRow { colors: page.colors; settings: page.settings; setting: "focusGlow" }
    }
    SettingsGroup {
        colors: page.colors
        title: qsTr("Switching")
        ToggleRow { colors: page.colors; settings: page.settings; setting: "tidyOnSwitch" }
    }
    KeyboardSettings { colors: page.colors; settings: page.settings }
    MessageSettings { colors: page.colors; settings: page.settings }
    SettingsGroup {
        colors: page.colors
        title: qsTr("Sound and start")
        ToggleRow { colors: page.colors; settings: page.settings; setting: "sounds" }
        CatalogRow {
            colors: page.colors
            settings: page.settings
            setting: "startAtLogin"
            Toggle { colors: page.colors; name: page.settings.labelOf("startAtLogin"); isOn: page.settings.startsAtLogin; onToggled: on => page.settings.startsAtLogin = on }
        }
    }
    SettingsGroup {
        colors: page.colors
        title: qsTr("First steps")
        CatalogRow {
            colors: page.colors
            settings: page.settings
            setting: "firstSteps"
            PushButton { colors: page.colors; text: qsTr("Show"); Accessible.name: page.settings.labelOf("firstSteps"); onClicked: page.settings.showFirstRun() }
        }
    }
    SettingsGroup {
        colors: page.colors
        title: qsTr("Crash reports")
        ToggleRow { colors: page.colors; settings: page.settings; setting: "crashReports" }
    }
    ContextSettings { colors: page.colors; settings: page.settings }
    DataSettings { colors: page.colors; settings: page.settings }
    ResetButton { colors: page.colors; settings: page.settings; pane: "general" }
}
