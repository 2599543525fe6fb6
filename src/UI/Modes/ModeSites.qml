import QtQuick
import Fendrel.Style
import Fendrel.Types

// The web sites of a mode.
SettingsGroup {
    id: group

    required property ModeEditor editor

    SettingRow {
        colors: group.colors
        label: qsTr("Web sites")
        help: qsTr("Type or paste addresses. What is below a site, such as docs.example.org, belongs to it.")
        Column {
            id: entry
            readonly property real room: (parent as SettingSlot)?.room ?? 320
            spacing: 6
            Row {
                id: siteRow
                spacing: 8
                InputField {
                    id: siteField
                    width: Math.min(implicitWidth, entry.room - adder.width - 8)
                    colors: group.colors
                    name: qsTr("Address of a web site")
                    placeholder: "example.org"
                    maximumLength: 8000
                    onEdited: remark.text = ""
                    onAccepted: add()
                    function add() {
                        remark.show(group.editor.addSites(text))
                        if (!remark.isProblem)
                            text = ""
                    }
                }
                PushButton {
                    id: adder
                    colors: group.colors
                    text: qsTr("Add")
                    isEnabled: siteField.text.trim() !== ""
                    onClicked: siteField.add()
                }
            }
            Label {
                id: remark
                property bool isProblem: false
                function show(answer: var) {
                    isProblem = answer.isProblem
                    text = answer.text
                }
                visible: text !== ""
                width: siteRow.width
                colors: group.colors
                color: isProblem ? group.colors.grave : group.colors.secondaryText
                font.pixelSize: Theme.textHelp
                wrapMode: Text.Wrap
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
        }
    }
    Item {
        width: parent.width
        height: sites.count === 0 ? 0 : sites.height + 32
        EntryChips {
            id: sites
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 18; topMargin: 16 }
            colors: group.colors
            name: qsTr("Web sites")
            entries: group.editor.sites
            onRemoved: site => group.editor.removeSite(site)
        }
    }
    // What was begun for one mode is not meant for another.
    Connections {
        target: group.editor
        function onModeChanged() {
            siteField.text = ""
            remark.text = ""
        }
    }
}
