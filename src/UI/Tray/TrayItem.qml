import Qt.labs.platform as Platform

// An entry of the status icon's menu.
Platform.MenuItem {
    id: item

    required property var entry

    readonly property string words: (entry.text ?? "") + (entry.hint ? "    " + entry.hint : "")

    // A single "&", and on the desktops of Linux "_", marks the letter for the keyboard, and is not shown.
    text: Qt.platform.os === "linux" ? words.replace("&", "&&").replace(/_/g, "__") : words.replace(/&/g, "&&")
    separator: entry.separator ?? false
    enabled: entry.value !== undefined
    checkable: entry.isChecked !== undefined
    checked: entry.isChecked ?? false
    onTriggered: {
        checked = Qt.binding(() => item.entry.isChecked ?? false)
        entry.value.call(null)
    }
}
