import QtQuick
import Fendrel.Style
import Fendrel.Types

// What is remembered of each mode that was left, and forgetting it.
SettingsGroup {
    id: group

    required property SettingsController settings
    readonly property ContextsController contexts: settings.contexts

    title: qsTr("Bringing back")
    CatalogRow {
        colors: group.colors
        settings: group.settings
        setting: "savedContexts"
        help: group.contexts.entries.length > 0 ? group.settings.helpOf(setting) : qsTr("Nothing is remembered yet. It begins when you leave a mode after two minutes.")
        PushButton {
            visible: group.contexts.entries.length > 1
            colors: group.colors
            text: qsTr("Forget All…")
            symbol: "trash"
            onClicked: group.contexts.askToForgetAll()
        }
    }
    Repeater {
        model: group.contexts.entries
        SettingRow {
            id: row
            required property var modelData
            colors: group.colors
            label: modelData.name
            help: [modelData.when, modelData.note, modelData.contents].filter(part => part !== "").join(" · ")
            PushButton {
                colors: group.colors
                text: qsTr("Forget")
                Accessible.name: qsTr("Forget what was open in %1").arg(row.modelData.name)
                onClicked: group.contexts.forget(row.modelData.modeID)
            }
        }
    }
}
