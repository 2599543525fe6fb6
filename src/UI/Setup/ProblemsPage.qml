import QtQuick
import Fendrel.Style
import Fendrel.Types

// What this system lacks for Fendrel to do all that it can.
Column {
    id: page

    required property FirstRunController firstRun
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 24

    PageHeading {
        colors: page.colors
        title: page.firstRun.problems.count > 0 ? qsTr("A few things to know") : qsTr("Everything is ready")
        text: page.firstRun.problems.count > 0 ? qsTr("Fendrel works without these. What is missing now can come later; the settings show it under Permissions.")
            : qsTr("This computer has all that Fendrel makes use of. The settings show it under Permissions.")
    }
    SettingsGroup {
        visible: page.firstRun.problems.count > 0
        colors: page.colors
        Repeater {
            model: page.firstRun.problems
            CapabilityRow {
                colors: page.colors
                permissions: page.firstRun.problems
            }
        }
    }
    Notice {
        visible: page.firstRun.problems.count === 0
        colors: page.colors
        symbol: "checkmark"
        text: qsTr("Nothing is left to do here.")
    }
}
