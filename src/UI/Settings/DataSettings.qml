import QtQuick
import Fendrel.Style
import Fendrel.Types

// What Fendrel has learned, and taking everything out into a file and in again.
Item {
    id: page

    required property SettingsController settings
    required property Colors colors
    readonly property DataController controller: settings.backup

    property bool isImporting: false // the file is asked for

    function importFrom(file: string) {
        isImporting = false
        controller.importFrom(file)
    }

    width: parent?.width ?? 0
    implicitHeight: column.height

    Column {
        id: column
        width: parent.width
        spacing: 10

        SettingsGroup {
            colors: page.colors
            title: qsTr("Your data")
            CatalogRow {
                colors: page.colors
                settings: page.settings
                setting: "learnedAnswers"
                PushButton {
                    id: shower
                    colors: page.colors
                    text: qsTr("Show…")
                    detail: page.settings.answers.total.toLocaleString(Qt.locale(), "f", 0)
                    onClicked: page.settings.isShowingAnswers = true
                }
            }
            CatalogRow {
                colors: page.colors
                settings: page.settings
                setting: "export"
                PushButton {
                    colors: page.colors
                    text: page.settings.files.isAvailable ? qsTr("Export…") : qsTr("Export")
                    isEnabled: !page.settings.files.isOpen
                    onClicked: page.controller.exportFor(this)
                }
            }
            CatalogRow {
                colors: page.colors
                settings: page.settings
                setting: "import"
                PushButton {
                    colors: page.colors
                    text: qsTr("Import…")
                    isEnabled: !page.settings.files.isOpen
                    onClicked: page.controller.importFor(this)
                }
            }
        }
        SettingsGroup {
            colors: page.colors
            visible: page.isImporting
            SettingRow {
                colors: page.colors
                label: qsTr("File to import")
                help: qsTr("Type where it is, or drop it here from the file manager.")
                InputField {
                    id: path
                    implicitWidth: 300 * Math.max(1, Theme.textScale)
                    colors: page.colors
                    name: qsTr("File to import")
                    placeholder: qsTr("~/Documents/Fendrel Backup.json")
                    maximumLength: 4096
                    onAccepted: if (text.trim() !== "") page.importFrom(text)
                    Keys.onEscapePressed: page.isImporting = false
                }
            }
        }
        StateLine {
            visible: page.controller.state !== ""
            colors: page.colors
            problem: page.controller.hasFailed ? page.controller.state : ""
            well: page.controller.state
        }
        Flow {
            visible: page.controller.canReveal || page.controller.canUndo
            anchors { left: parent.left; right: parent.right; leftMargin: 18; rightMargin: 18 }
            spacing: 10
            PushButton {
                visible: page.controller.canReveal
                colors: page.colors
                text: qsTr("Show in Folder")
                symbol: "folder"
                onClicked: page.controller.reveal()
            }
            PushButton {
                visible: page.controller.canUndo
                colors: page.colors
                text: qsTr("Undo Import")
                symbol: "arrow.uturn.backward"
                onClicked: page.controller.undoImport()
            }
        }
    }
    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: drop => {
            if (drop.urls.length === 1)
                page.importFrom(drop.urls[0].toString())
        }
    }
    Connections {
        target: page.controller
        function onPathWanted() {
            page.isImporting = true
            path.forceActiveFocus(Qt.TabFocusReason)
        }
    }
    Connections {
        target: page.settings
        function onIsShowingAnswersChanged() {
            if (!page.settings.isShowingAnswers)
                shower.forceActiveFocus(Qt.OtherFocusReason)
        }
    }
}
