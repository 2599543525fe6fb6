import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of the accounts that widgets use.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors
    readonly property AccountsController accounts: settings.accounts

    width: parent?.width ?? 0
    spacing: 18
    Component.onCompleted: accounts.look()

    Label {
        colors: page.colors
        color: page.colors.secondaryText
        width: parent.width
        text: qsTr("Some widgets show what a service knows about you, and need a key for it. Keys are kept in your keyring and nowhere else.")
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    SettingsGroup {
        colors: page.colors
        visible: page.accounts.problem !== ""
        SettingRow {
            colors: page.colors
            label: page.accounts.problem
            help: page.accounts.remedy
            PushButton {
                colors: page.colors
                isFilled: true
                text: page.accounts.remedyAction
                onClicked: page.accounts.runRemedy()
            }
        }
    }
    SettingsGroup {
        colors: page.colors
        Repeater {
            model: page.accounts
            AccountRow {
                colors: page.colors
                accounts: page.accounts
            }
        }
    }
}
