import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of the dock.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 18

    SettingsGroup {
        colors: page.colors
        CatalogRow {
            colors: page.colors
            settings: page.settings
            setting: "replacesDock"
            help: page.settings.dockHelp
            Toggle { colors: page.colors; name: page.settings.labelOf("replacesDock"); isOn: page.settings.replacesDock; onToggled: on => page.settings.replaceDock(on) }
        }
    }
    SettingsGroup {
        colors: page.colors
        title: qsTr("Place and size")
        ChoiceRow { colors: page.colors; settings: page.settings; setting: "dockPosition"; labels: [qsTr("Bottom"), qsTr("Left"), qsTr("Right")] }
        ChoiceRow { colors: page.colors; settings: page.settings; setting: "dockSize"; labels: [qsTr("Small"), qsTr("Medium"), qsTr("Large")] }
        ChoiceRow { colors: page.colors; settings: page.settings; setting: "dockDisplay"; labels: [qsTr("Main"), qsTr("Active"), qsTr("All")] }
    }
    SettingsGroup {
        colors: page.colors
        title: qsTr("Behavior")
        ToggleRow { colors: page.colors; settings: page.settings; setting: "autoHide" }
        ToggleRow { colors: page.colors; settings: page.settings; setting: "magnify" }
        ToggleRow { colors: page.colors; settings: page.settings; setting: "clickToHide" }
    }
    ResetButton { colors: page.colors; settings: page.settings; pane: "dock" }
}
