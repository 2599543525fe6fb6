import QtQuick
import Fendrel.Style
import Fendrel.Types

// The chosen mode, and everything that can be changed about it.
Flickable {
    id: scroller

    required property Colors colors
    required property ModesController modes
    readonly property ModeEditor editor: modes.editor

    contentHeight: page.height + 100 // the card that takes a deletion back covers nothing for good
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    function editName() {
        contentY = 0
        appearance.editName()
    }
    Connections {
        target: scroller.editor
        function onModeChanged() { scroller.contentY = 0 }
    }

    // What the keyboard goes to is to be seen.
    readonly property Item focused: Window.activeFocusItem
    onFocusedChanged: {
        let parent = focused
        let whole = focused // with what belongs to it, as a list below a field
        while (parent && parent !== page) {
            if (parent instanceof FocusScope)
                whole = parent
            parent = parent.parent
        }
        if (!parent)
            return
        const top = whole.mapToItem(contentItem, 0, 0).y
        const wanted = Math.max(top + whole.height + 40 - height, Math.min(top - 40, contentY))
        contentY = Math.max(0, Math.min(contentHeight - height, wanted))
    }

    Column {
        id: page
        anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: 28; rightMargin: 28; topMargin: 22 }
        spacing: 18

        Label {
            width: parent.width
            colors: scroller.colors
            text: scroller.editor.name
            font.pixelSize: Theme.title
            font.weight: Font.Bold
            wrapMode: Text.Wrap
            maximumLineCount: 2
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        ModeAppearance {
            id: appearance
            colors: scroller.colors
            editor: scroller.editor
        }
        ModeApps {
            colors: scroller.colors
            editor: scroller.editor
        }
        ModeSites {
            colors: scroller.colors
            editor: scroller.editor
        }
        SettingsGroup {
            colors: scroller.colors
            SettingRow {
                colors: scroller.colors
                label: qsTr("Wait before entering")
                help: qsTr("During focus, switching to this mode takes a moment to think.")
                Choice { colors: scroller.colors; name: qsTr("Wait before entering"); labels: scroller.editor.waits; current: scroller.editor.wait; onChosen: index => scroller.editor.wait = index }
            }
            SettingRow {
                colors: scroller.colors
                label: qsTr("Drift allowance")
                help: qsTr("How long a day you may stray from this mode.")
                Choice { colors: scroller.colors; name: qsTr("Drift allowance"); labels: scroller.editor.allowances; current: scroller.editor.allowance; onChosen: index => scroller.editor.allowance = index }
            }
        }
        ModeWidgets {
            colors: scroller.colors
            editor: scroller.editor
        }
        DryRun {
            colors: scroller.colors
            modes: scroller.modes
        }
        SettingsGroup {
            colors: scroller.colors
            SettingRow {
                colors: scroller.colors
                label: qsTr("Duplicate this mode")
                help: qsTr("Makes another one with the same applications, web sites and widgets.")
                PushButton {
                    colors: scroller.colors
                    text: qsTr("Duplicate")
                    symbol: "doc.on.doc"
                    onClicked: scroller.modes.duplicate(scroller.editor.modeID)
                }
            }
            SettingRow {
                colors: scroller.colors
                label: qsTr("Delete this mode")
                help: scroller.modes.canDelete ? qsTr("You can undo this for a moment.") : qsTr("There has to be one, and this is the last.")
                PushButton {
                    colors: scroller.colors
                    text: qsTr("Delete")
                    symbol: "trash"
                    isEnabled: scroller.modes.canDelete
                    onClicked: scroller.modes.remove(scroller.editor.modeID)
                }
            }
        }
    }
}
