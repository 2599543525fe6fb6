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
        if (!next)
            return
        next.chosen()
        next.forceActiveFocus(Qt.TabFocusReason)
    }

    Repeater { id: repeater }
}
