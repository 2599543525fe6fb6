import QtQuick
import Fendrel.Style
import Fendrel.Types

// What is held and what comes through, and the language model that is asked about it.
Column {
    id: page

    required property Colors colors
    required property SettingsController settings
    readonly property Preferences preferences: settings.preferences

    width: parent?.width ?? 0
    spacing: 18

    // How something stands now: well, or why not.
    component StateLine: Row {
        id: state
        required property string problem
        required property string well
        x: 18
        width: page.width - 36
        spacing: 7
        Symbol {
            id: mark
            name: state.problem === "" ? "checkmark" : "info.circle"
            size: 15
            color: state.problem === "" ? page.colors.secondaryText : page.colors.warning
        }
        Label {
            colors: page.colors
            color: state.problem === "" ? page.colors.secondaryText : page.colors.warning
            width: state.width - mark.width - state.spacing
            text: state.problem === "" ? state.well : state.problem
            font.pixelSize: 12
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }

    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Always let through")
            help: qsTr("Messages with one of these words show at once. Commas between them.")
            InputField {
                width: 250
                colors: page.colors
                name: qsTr("Always let through")
                text: page.preferences.breakThrough
                onCommitted: text => page.preferences.breakThrough = text
            }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Quiet the desktop's banners")
            help: qsTr("While messages are held, the desktop shows none at all, those of the current mode neither.")
            Toggle { colors: page.colors; name: qsTr("Quiet the desktop's banners"); isOn: page.preferences.quietBanners; onToggled: on => page.preferences.quietBanners = on }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Never hold critical messages")
            help: qsTr("What the system itself calls critical, such as an empty battery, is left alone.")
            Toggle { colors: page.colors; name: qsTr("Never hold critical messages"); isOn: page.preferences.passCritical; onToggled: on => page.preferences.passCritical = on }
        }
    }
    StateLine {
        problem: page.settings.messagesProblem
        well: qsTr("Messages of other modes are held.")
    }

    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Model server")
            help: qsTr("Address of a language model on this computer. No other is ever asked.")
            InputField {
                width: 250
                colors: page.colors
                name: qsTr("Model server")
                placeholder: qsTr("Found by itself")
                text: page.preferences.modelServer
                onCommitted: text => page.preferences.modelServer = text.trim()
            }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Model name")
            help: qsTr("Which of its models to ask.")
            InputField {
                width: 250
                colors: page.colors
                name: qsTr("Model name")
                placeholder: qsTr("Found by itself")
                text: page.preferences.modelName
                onCommitted: text => page.preferences.modelName = text.trim()
            }
        }
    }
    StateLine {
        problem: page.settings.modelProblem
        well: qsTr("Connected. It judges what the modes' lists don't name.")
    }
}
