import QtQuick

// Several things of which one is chosen. The keyboard comes to that one, and the arrows choose another.
Flow {
    id: row

    required property string name
    property alias model: repeater.model
    property alias delegate: repeater.delegate

    Accessible.role: Accessible.Grouping
    Accessible.name: name

    function step(from: int, by: int) {
        const next = repeater.itemAt(from + by) as RadioItem
        if (!next || !next.visible)
            return
        next.forceActiveFocus(Qt.TabFocusReason) // first: what has the keyboard must stay in the order of tabs
        next.chosen()
    }

    Repeater { id: repeater }
}
