import QtQml
import Qt.labs.platform as Platform

// Entries of the status icon's menu that have a menu of their own.
Platform.Menu {
    id: page

    required property var entry
    readonly property var entries: entry.page ?? []

    title: entry.text ?? ""

    readonly property Instantiator maker: Instantiator {
        model: page.entries.length
        delegate: TrayItem {
            required property int index
            entry: page.entries[index] ?? ({})
        }
        onObjectAdded: (index, object) => page.insertItem(index, object)
        onObjectRemoved: (index, object) => page.removeItem(object)
    }
}
