import QtQuick
import Fendrel.Style
import Fendrel.Types

// The hot keys, which work whatever is in front.
Column {
    id: page

    required property Colors colors
    required property SettingsController settings
    readonly property KeyboardController keyboard: settings.keyboard

    width: parent?.width ?? 0
    spacing: 10

    Component.onCompleted: keyboard.retry() // another program may have let go of one

    component KeysRow: CatalogRow {
        colors: page.colors
        settings: page.settings
        problem: page.keyboard.states[setting].problem
    }
    component ShortcutRow: KeysRow {
        id: shortcutRow
        ShortcutField { colors: page.colors; name: shortcutRow.label; setting: shortcutRow.setting; keyboard: page.keyboard }
    }
    component DigitsRow: KeysRow {
        id: digitsRow
        Choice {
            readonly property var choices: page.keyboard.choices
            colors: page.colors
            name: digitsRow.label
            labels: choices.map(choice => choice.label)
            current: choices.findIndex(choice => choice.modifiers === page.settings.preferences[digitsRow.setting])
            onChosen: index => page.settings.preferences[digitsRow.setting] = choices[index].modifiers
        }
    }

    SettingsGroup {
        colors: page.colors
        title: qsTr("Hot keys")
        ShortcutRow { setting: "focusShortcut" }
        ShortcutRow { setting: "dockShortcut" }
        DigitsRow { setting: "modeModifiers" }
        DigitsRow { setting: "appModifiers" }
    }
    Label {
        anchors { left: parent.left; leftMargin: 18 }
        width: parent.width - 36
        colors: page.colors
        color: page.colors.secondaryText
        text: qsTr("⌃ is Control, ⌥ is Alt, ⇧ is Shift and ⌘ is the Super key.")
        font.pixelSize: Theme.textHelp
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
