import QtQuick
import Fendrel.Style
import Fendrel.Types

// How Fendrel comes to know which site is in front.
Column {
    id: page

    required property FirstRunController firstRun
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 24

    PageHeading {
        colors: page.colors
        title: page.firstRun.browsers.hasConnection ? qsTr("Your browser is connected") : qsTr("Connect your browser")
        text: qsTr("A small extension tells Fendrel which site is in front. It talks to Fendrel alone, and nothing of it leaves this computer. You can do this later as well.")
    }
    SettingsGroup {
        colors: page.colors
        Repeater {
            model: page.firstRun.browsers
            CapabilityRow {
                colors: page.colors
                permissions: page.firstRun.browsers
            }
        }
    }
}
