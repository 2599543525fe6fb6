import QtQuick
import Fendrel.Style
import Fendrel.Types

// The applications of a mode: searched among those that are installed, or dragged in.
SettingsGroup {
    id: group

    required property ModeEditor editor

    SettingRow {
        colors: group.colors
        label: qsTr("Applications")
        help: drop.containsDrag ? qsTr("Let go to add it to this mode.")
                                : qsTr("They are in the dock while you are in this mode. Drag more of them here, or search.")
        PushButton {
            id: adder
            colors: group.colors
            text: picker.active ? qsTr("Done") : qsTr("Add…")
            symbol: picker.active ? "checkmark" : "plus"
            onClicked: picker.active = !picker.active
        }
        DropArea {
            id: drop
            // As large as the card, wherever in it the button is.
            parent: group
            anchors.fill: parent
            keys: ["text/uri-list"]
            onDropped: event => {
                problem.text = group.editor.addFiles(event.urls)
                event.accept(Qt.CopyAction)
            }
            Rectangle {
                anchors.fill: parent
                visible: drop.containsDrag
                radius: 14
                color: group.colors.faded(group.colors.accent, 0.08)
                border.width: 2
                border.color: group.colors.accent
            }
        }
    }
    Item {
        width: parent.width
        height: picker.active ? picker.height + 28 : 0
        Loader {
            id: picker
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 18; topMargin: 14 }
            active: false
            onLoaded: (item as AppPicker).forceActiveFocus(Qt.TabFocusReason)
            sourceComponent: AppPicker {
                colors: group.colors
                candidates: group.editor.candidates
                onSearched: words => group.editor.search(words)
                onChosen: bundleID => group.editor.addApp(bundleID)
                onClosed: {
                    adder.forceActiveFocus(Qt.TabFocusReason)
                    picker.active = false
                }
            }
        }
    }
    Item {
        width: parent.width
        height: (apps.count === 0 ? 0 : apps.height + 32) + (problem.visible ? problem.height + 14 : 0)
        EntryChips {
            id: apps
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 18; topMargin: 16 }
            colors: group.colors
            name: qsTr("Applications")
            entries: group.editor.apps
            onRemoved: bundleID => group.editor.removeApp(bundleID)
        }
        Label {
            id: problem
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 18; bottomMargin: 14 }
            visible: text !== ""
            colors: group.colors
            color: group.colors.grave
            font.pixelSize: Theme.textHelp
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
    Connections {
        target: group.editor
        function onModeChanged() {
            picker.active = false
            problem.text = ""
        }
        function onChanged() { problem.text = "" }
    }
}
