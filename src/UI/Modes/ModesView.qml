import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of the modes: one of them is chosen, and edited below.
Column {
    id: page

    required property Colors colors
    required property ModeEditor editor

    width: parent?.width ?? 0
    spacing: 18

    // What was begun for one mode is not meant for another.
    Connections {
        target: page.editor
        function onModeChanged() {
            siteField.text = ""
            problem.text = ""
        }
    }

    RadioRow {
        width: parent.width
        spacing: 8
        name: qsTr("Mode to edit")
        model: page.editor.modes
        delegate: RadioItem {
            id: pill
            required property string modeID
            required property string name
            required property string symbol
            required property color tint
            readonly property color foreground: isChosen ? page.colors.onTint(tint) : page.colors.text
            row: parent as RadioRow
            label: name
            isChosen: page.editor.modeID === modeID
            onChosen: page.editor.edit(modeID)
            width: caption.x + caption.width + 14
            height: 36

            Rectangle {
                anchors.fill: parent
                radius: 12
                color: pill.isChosen ? pill.tint : pill.isHovered ? page.colors.faded(pill.tint, 0.18) : page.colors.card
                border.width: pill.isChosen ? 0 : 1
                border.color: page.colors.line
                Behavior on color { ColorAnimation { duration: Theme.quick } }
            }
            Symbol {
                x: 12
                anchors.verticalCenter: parent.verticalCenter
                name: pill.symbol
                color: pill.isChosen ? pill.foreground : page.colors.tintText(pill.tint)
            }
            Label {
                id: caption
                x: 38
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(Math.ceil(implicitWidth), 180)
                colors: page.colors
                color: pill.foreground
                text: pill.name
                font.weight: Font.Medium
                Accessible.ignored: true
            }
            FocusRing { target: pill; targetRadius: 12; visible: pill.activeFocus && !pill.isPointed }
        }
    }

    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Name")
            help: qsTr("What the dock and the menus call this mode.")
            InputField {
                id: nameField
                width: 250
                colors: page.colors
                name: qsTr("Name of the mode")
                maximumLength: 60
                text: page.editor.name
                onCommitted: text => {
                    page.editor.rename(text)
                    nameField.text = Qt.binding(() => page.editor.name) // as it was taken over, or the old one
                }
            }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Color")
            help: qsTr("Marks the mode wherever it shows.")
            RadioRow {
                spacing: 10
                name: qsTr("Color")
                model: page.editor.tints
                delegate: RadioItem {
                    id: swatch
                    required property var modelData
                    row: parent as RadioRow
                    label: modelData.label
                    isChosen: page.editor.tint === index
                    onChosen: page.editor.tint = index
                    width: 26
                    height: 26
                    Rectangle {
                        anchors.fill: parent
                        radius: 13
                        color: swatch.modelData.color
                        scale: swatch.isHovered ? 1.1 : 1
                        Behavior on scale { NumberAnimation { duration: Theme.quick } }
                    }
                    Symbol {
                        anchors.centerIn: parent
                        visible: swatch.isChosen
                        name: "checkmark"
                        size: 16
                        color: page.colors.onTint(swatch.modelData.color)
                    }
                    FocusRing { target: swatch; targetRadius: 13; visible: swatch.activeFocus && !swatch.isPointed }
                }
            }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Wait before entering")
            help: qsTr("During focus, switching to this mode takes a moment to think.")
            Choice { colors: page.colors; name: qsTr("Wait before entering"); labels: page.editor.waits; current: page.editor.wait; onChosen: index => page.editor.wait = index }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Drift allowance")
            help: qsTr("How long a day you may stray from this mode.")
            Choice { colors: page.colors; name: qsTr("Drift allowance"); labels: page.editor.allowances; current: page.editor.allowance; onChosen: index => page.editor.allowance = index }
        }
    }

    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Applications")
            help: apps.count === 0 ? qsTr("None belong to this mode yet.") : qsTr("They belong to this mode, and are in the dock while you are in it.")
            PushButton {
                id: adder
                colors: page.colors
                text: picker.active ? qsTr("Done") : qsTr("Add…")
                onClicked: picker.active = !picker.active
            }
        }
        Item { // placed before it opens, so that it is known where to scroll to
            width: parent.width
            height: picker.active ? picker.height + 22 : 0
            Loader {
                id: picker
                x: 18
                y: 16
                width: parent.width - 36
                active: false
                onLoaded: (item as AppPicker).forceActiveFocus(Qt.TabFocusReason)
                sourceComponent: AppPicker {
                    colors: page.colors
                    candidates: page.editor.candidates
                    onSearched: words => page.editor.search(words)
                    onChosen: bundleID => page.editor.addApp(bundleID)
                    onClosed: {
                        adder.forceActiveFocus(Qt.TabFocusReason)
                        picker.active = false
                    }
                }
            }
        }
        Item {
            width: parent.width
            height: apps.count === 0 ? 0 : apps.height + 32
            EntryChips {
                id: apps
                x: 18
                y: 16
                width: parent.width - 36
                colors: page.colors
                name: qsTr("Applications")
                entries: page.editor.apps
                onRemoved: bundleID => page.editor.removeApp(bundleID)
            }
        }
    }

    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Web sites")
            help: qsTr("Type or paste addresses. What is below a site, such as docs.example.org, belongs to it.")
            Column {
                spacing: 6
                Row {
                    id: siteRow
                    spacing: 8
                    InputField {
                        id: siteField
                        width: 220
                        colors: page.colors
                        name: qsTr("Address of a web site")
                        placeholder: "example.org"
                        maximumLength: 8000
                        onEdited: problem.text = ""
                        onAccepted: add()
                        function add() {
                            problem.text = page.editor.addSites(text)
                            if (problem.text === "")
                                text = ""
                        }
                    }
                    PushButton {
                        colors: page.colors
                        text: qsTr("Add")
                        isEnabled: siteField.text.trim() !== ""
                        onClicked: siteField.add()
                    }
                }
                Label {
                    id: problem
                    visible: text !== ""
                    width: siteRow.width
                    colors: page.colors
                    color: page.colors.grave
                    font.pixelSize: 12
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
                x: 18
                y: 16
                width: parent.width - 36
                colors: page.colors
                name: qsTr("Web sites")
                entries: page.editor.sites
                onRemoved: site => page.editor.removeSite(site)
            }
        }
    }

    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Delete this mode")
            help: page.editor.canDelete ? qsTr("Its list of applications and web sites goes with it.") : qsTr("There has to be one, and this is the last.")
            PushButton {
                colors: page.colors
                text: qsTr("Delete…")
                symbol: "trash"
                isEnabled: page.editor.canDelete
                onClicked: page.editor.askToDelete()
            }
        }
    }
}
