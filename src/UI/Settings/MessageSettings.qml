import QtQuick
import Fendrel.Style
import Fendrel.Types

// What is held and what comes through, and the language model that is asked about it.
Column {
    id: page

    required property Colors colors
    required property SettingsController settings

    width: parent?.width ?? 0
    spacing: 8

    SettingsGroup {
        colors: page.colors
        title: qsTr("Messages")
        TextRow { colors: page.colors; settings: page.settings; setting: "breakThrough" }
        ToggleRow { colors: page.colors; settings: page.settings; setting: "passCritical" }
        ToggleRow { colors: page.colors; settings: page.settings; setting: "quietBanners" }
        ToggleRow { colors: page.colors; settings: page.settings; setting: "claudePings" }
    }
    StateLine {
        colors: page.colors
        problem: page.settings.messagesProblem
        well: qsTr("Messages of other modes are held.")
    }
    Item { width: 1; height: 2 }

    SettingsGroup {
        colors: page.colors
        title: qsTr("Language model")
        TextRow { colors: page.colors; settings: page.settings; setting: "modelServer"; placeholder: qsTr("Found by itself") }
        TextRow { colors: page.colors; settings: page.settings; setting: "modelName"; placeholder: qsTr("Found by itself") }
    }
    StateLine {
        colors: page.colors
        problem: page.settings.modelProblem
        well: qsTr("Connected. It judges what the modes' lists don't name.")
    }
}
