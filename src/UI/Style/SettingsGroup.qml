import QtQuick

// Settings that belong together, on one card.
Item {
    id: group

    required property Colors colors
    default property alias rows: column.data

    width: parent.width
    height: column.height

    Rectangle {
        anchors.fill: parent
        radius: 14
        color: group.colors.card
        border.width: 1
        border.color: group.colors.line
    }
    Column {
        id: column
        width: parent.width
    }
}
