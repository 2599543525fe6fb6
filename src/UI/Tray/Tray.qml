import QtQuick
import Qt.labs.platform as Platform
import Fendrel.Types

// The status icon: modes, focus and quitting, for desktops that have a place for such icons.
Platform.SystemTrayIcon {
    id: tray

    required property DockController dock
    required property FocusController focusState
    required property string iconName

    visible: true
    icon.name: iconName
    icon.source: "image://symbol/scope/ff808080"
    tooltip: !focusState.isOn ? "Fendrel · " + dock.modeName
           : focusState.remaining === "" ? qsTr("%1 · focused").arg(dock.modeName)
           : qsTr("%1 · %2 left").arg(dock.modeName).arg(focusState.remaining)

    menu: Platform.Menu {
        id: menu

        Instantiator {
            model: tray.dock.modes
            delegate: Platform.MenuItem {
                required property string modeID
                required property string name
                required property bool isCurrent
                required property bool isPending
                text: isPending ? qsTr("%1 (switching in %2 s)").arg(name).arg(tray.focusState.pendingSeconds) : name
                checkable: true
                checked: isCurrent
                onTriggered: {
                    checked = Qt.binding(() => isCurrent)
                    tray.dock.requestMode(modeID)
                }
            }
            onObjectAdded: (index, object) => menu.insertItem(index, object)
            onObjectRemoved: (index, object) => menu.removeItem(object)
        }
        Platform.MenuSeparator {}
        Platform.MenuItem {
            text: qsTr("Start Focus")
            visible: !tray.focusState.isOn
            onTriggered: tray.focusState.start(0)
        }
        Instantiator {
            model: [25, 50, 90]
            delegate: Platform.MenuItem {
                required property int modelData
                text: qsTr("Focus for %1 Minutes").arg(modelData)
                visible: !tray.focusState.isOn
                onTriggered: tray.focusState.start(modelData)
            }
            onObjectAdded: (index, object) => menu.insertItem(tray.dock.modes.rowCount() + 2 + index, object)
            onObjectRemoved: (index, object) => menu.removeItem(object)
        }
        Platform.MenuItem {
            text: tray.focusState.remaining === "" ? qsTr("End Focus") : qsTr("End Focus (%1 left)").arg(tray.focusState.remaining)
            visible: tray.focusState.isOn
            onTriggered: tray.focusState.stop()
        }
        Platform.MenuSeparator {}
        Platform.MenuItem {
            text: qsTr("Settings…")
            onTriggered: tray.dock.openSettings("general")
        }
        Platform.MenuItem {
            text: qsTr("Quit Fendrel")
            onTriggered: tray.dock.quit()
        }
    }
}
