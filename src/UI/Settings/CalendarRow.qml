import QtQuick
import Fendrel.Style
import Fendrel.Types

// Whose events and reminders the widgets show.
CatalogRow {
    id: row

    required property CalendarChooser chooser

    setting: "calendarFolder"
    help: chooser.state
    problem: chooser.problem

    Flow {
        width: Math.min(implicitWidth, (parent as SettingSlot)?.room ?? implicitWidth)
        spacing: 10
        InputField {
            property bool isNew: false
            width: Math.min(implicitWidth, row.width - 36)
            colors: row.colors
            name: row.label
            placeholder: qsTr("Found by itself")
            symbol: "folder"
            maximumLength: 4096
            text: row.chooser.folder
            onEdited: isNew = true
            onCommitted: typed => {
                if (!isNew)
                    return
                isNew = false
                row.chooser.setFolder(typed)
                text = Qt.binding(() => row.chooser.folder) // as it was taken over
            }
        }
        PushButton {
            visible: row.settings.files.isAvailable
            colors: row.colors
            text: qsTr("Choose…")
            isEnabled: row.chooser.canAsk
            onClicked: row.chooser.ask(this)
        }
    }
}
