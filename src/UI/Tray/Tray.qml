import QtQuick
import Qt.labs.platform as Platform
import Fendrel.Dock
import Fendrel.Types

// The status icon, in the mode's tint, for desktops that have a place for such icons.
Platform.SystemTrayIcon {
    id: tray

    required property DockController dock
    required property FocusController focusState

    readonly property MainMenu main: MainMenu {
        dock: tray.dock
        focusState: tray.focusState
    }
    readonly property var mode: main.allModes.find(mode => mode.isCurrent)
    readonly property string tint: dock.tint.toString().substring(1)

    visible: true
    icon.source: "image://tray/" + mode.symbol + "/" + (tint.length === 6 ? "ff" : "") + tint + "/" + (focusState.isOn ? "focus" : "rest")
    tooltip: !focusState.isOn ? "Fendrel · " + dock.modeName
           : focusState.remaining === "" ? qsTr("%1 · focused").arg(dock.modeName)
           : qsTr("%1 · %2 left").arg(dock.modeName).arg(focusState.remaining)

    menu: Platform.Menu {
        id: menu

        // Its items stay while only their words change, or a menu that is open would be made anew every second.
        readonly property var entries: tray.main.entries(false)
        readonly property string shape: entries.map(entry => entry.page ? ">" : "-").join("")

        readonly property Instantiator maker: Instantiator {
            model: menu.shape.split("")
            delegate: QtObject {
                id: row
                required property int index
                required property string modelData
                readonly property bool isPage: modelData === ">"
                readonly property var entry: menu.entries[index] ?? ({})
                property Platform.MenuItem item
                property Platform.Menu page
            }
            onObjectAdded: (index, row) => {
                if (row.isPage) {
                    row.page = menu.pageMaker.createObject(row, { row: row })
                    menu.insertMenu(index, row.page)
                } else {
                    row.item = menu.itemMaker.createObject(row, { row: row })
                    menu.insertItem(index, row.item)
                }
            }
            onObjectRemoved: (index, row) => {
                if (row.isPage)
                    menu.removeMenu(row.page)
                else
                    menu.removeItem(row.item)
            }
        }
        readonly property Component itemMaker: Component {
            TrayItem {
                required property var row
                entry: row.entry
            }
        }
        readonly property Component pageMaker: Component {
            TrayPage {
                required property var row
                entry: row.entry
            }
        }
    }
}
