import QtQuick
import Fendrel.Style
import Fendrel.Types

// The window of the modes: all of them in their order, and the chosen one beside them. Changes apply at once.
FocusScope {
    id: root

    required property ModesController modes
    readonly property real sidebarWidth: Math.min(width * 0.36, Math.round(232 * Math.max(1, Theme.textScale)))

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Keys.onPressed: event => {
        if (event.matches(StandardKey.Undo) && root.modes.removedName !== "") {
            root.modes.undoRemove()
            event.accepted = true
        } else if (event.matches(StandardKey.New)) {
            adder.open()
            event.accepted = true
        }
    }

    Colors {
        id: viewColors
        isDark: root.modes.isDark
    }
    Rectangle {
        anchors.fill: parent
        color: viewColors.window
    }
    Rectangle {
        id: sidebar
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: root.sidebarWidth
        color: viewColors.hover

        ModeList {
            id: list
            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: addButton.top; margins: 12; topMargin: 16 }
            colors: viewColors
            modes: root.modes
            focus: true
        }
        PushButton {
            id: addButton
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 12 }
            colors: viewColors
            text: qsTr("Add Mode")
            symbol: "plus"
            onClicked: adder.open()
        }
    }

    ModePage {
        id: page
        anchors { left: sidebar.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        colors: viewColors
        modes: root.modes
    }

    UndoBar {
        anchors { horizontalCenter: page.horizontalCenter; bottom: page.bottom; bottomMargin: 20 }
        maximumWidth: page.width - 48
        colors: viewColors
        modes: root.modes
    }

    AddMode {
        id: adder
        anchors.fill: parent
        corner: Qt.rect(sidebar.x + 12, addButton.y, sidebar.width - 24, addButton.height)
        colors: viewColors
        modes: root.modes
        onClosed: addButton.forceActiveFocus(Qt.PopupFocusReason)
    }

    Connections {
        target: root.modes
        function onAdded() { page.editName() }
    }
}
