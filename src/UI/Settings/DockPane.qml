import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of the dock.
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
            label: qsTr("Replace the system dock")
            help: page.settings.systemDock !== "" ? qsTr("Hides %1 while Fendrel runs, and gives it back as it was.").arg(page.settings.systemDock)
                : page.settings.replacesDock ? qsTr("No other dock or panel runs that Fendrel could hide. Minimized windows and the Trash are in the dock.")
                : qsTr("No other dock or panel runs that Fendrel could hide. Minimized windows and the Trash come to the dock all the same.")
            Toggle { colors: page.colors; name: qsTr("Replace the system dock"); isOn: page.settings.replacesDock; onToggled: on => page.settings.replaceDock(on) }
        }
    }

    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Position")
            help: qsTr("The edge of the screen that the dock is at.")
            Choice { colors: page.colors; name: qsTr("Position"); labels: [qsTr("Bottom"), qsTr("Left"), qsTr("Right")]; current: page.preferences.dockPosition; onChosen: index => page.preferences.dockPosition = index }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Size")
            help: qsTr("How large the icons are.")
            Choice { colors: page.colors; name: qsTr("Size"); labels: [qsTr("Small"), qsTr("Medium"), qsTr("Large")]; current: page.preferences.dockSize; onChosen: index => page.preferences.dockSize = index }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Show on")
            help: qsTr("The main display, the one you work on, or all of them.")
            Choice { colors: page.colors; name: qsTr("Show on"); labels: [qsTr("Main"), qsTr("Active"), qsTr("All")]; current: page.preferences.dockDisplay; onChosen: index => page.preferences.dockDisplay = index }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Hide automatically")
            help: qsTr("The dock comes when the pointer reaches its edge.")
            Toggle { colors: page.colors; name: qsTr("Hide automatically"); isOn: page.preferences.autoHide; onToggled: on => page.preferences.autoHide = on }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Magnify icons")
            help: qsTr("The icon under the pointer grows.")
            Toggle { colors: page.colors; name: qsTr("Magnify icons"); isOn: page.preferences.magnify; onToggled: on => page.preferences.magnify = on }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Click to hide")
            help: qsTr("Clicking the application that is in front hides it.")
            Toggle { colors: page.colors; name: qsTr("Click to hide"); isOn: page.preferences.clickToHide; onToggled: on => page.preferences.clickToHide = on }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Glow during focus")
            help: qsTr("The edges of the screen shine in the mode's color while a focus session runs.")
            Toggle { colors: page.colors; name: qsTr("Glow during focus"); isOn: page.preferences.focusGlow; onToggled: on => page.preferences.focusGlow = on }
        }
    }
}
