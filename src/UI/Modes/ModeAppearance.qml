import QtQuick
import Fendrel.Style
import Fendrel.Types

// What a mode is called, and what it looks like.
SettingsGroup {
    id: group

    required property ModeEditor editor

    function editName() {
        nameField.forceActiveFocus(Qt.OtherFocusReason)
        nameField.selectAll()
    }

    SettingRow {
        colors: group.colors
        label: qsTr("Name")
        help: qsTr("What the dock and the menus call this mode.")
        InputField {
            id: nameField
            colors: group.colors
            name: qsTr("Name of the mode")
            maximumLength: 60
            text: group.editor.name
            onCommitted: text => {
                group.editor.rename(text)
                nameField.text = Qt.binding(() => group.editor.name) // as it was taken over, or the old one
            }
        }
    }
    SettingRow {
        colors: group.colors
        label: qsTr("Color")
        help: qsTr("Marks the mode wherever it shows.")
        RadioRow {
            id: tints
            readonly property int cell: Math.round(26 * Math.max(1, Theme.textScale))
            width: Math.min(8 * (cell + spacing) - spacing, (parent as SettingSlot)?.room ?? 400)
            spacing: 10
            name: qsTr("Color")
            model: group.editor.tints
            delegate: RadioItem {
                id: swatch
                required property var modelData
                row: parent as RadioRow
                label: modelData.label
                isChosen: group.editor.tint === index
                onChosen: group.editor.tint = index
                width: tints.cell
                height: tints.cell
                Rectangle {
                    anchors.fill: parent
                    radius: width / 2
                    color: swatch.modelData.color
                    scale: swatch.isHovered ? 1.1 : 1
                    Behavior on scale { NumberAnimation { duration: Theme.quick } }
                }
                Symbol {
                    anchors.centerIn: parent
                    visible: swatch.isChosen
                    name: "checkmark"
                    size: Math.round(tints.cell * 0.6)
                    color: group.colors.onTint(swatch.modelData.color)
                }
                FocusRing { target: swatch; targetRadius: tints.cell / 2; visible: swatch.activeFocus && !swatch.isPointed }
            }
        }
    }
    SettingRow {
        colors: group.colors
        label: qsTr("Symbol")
        help: group.editor.symbolLabel
        PushButton {
            id: changer
            colors: group.colors
            text: picker.active ? qsTr("Done") : qsTr("Change…")
            symbol: group.editor.symbol
            onClicked: picker.active = !picker.active
        }
    }
    Item {
        width: parent.width
        height: picker.active ? picker.height + 30 : 0
        Loader {
            id: picker
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 18; topMargin: 14 }
            active: false
            onLoaded: (item as SymbolPicker).forceActiveFocus(Qt.TabFocusReason)
            sourceComponent: SymbolPicker {
                colors: group.colors
                editor: group.editor
                onClosed: {
                    changer.forceActiveFocus(Qt.TabFocusReason)
                    picker.active = false
                }
            }
        }
    }
    Connections {
        target: group.editor
        function onModeChanged() { picker.active = false }
    }
}
