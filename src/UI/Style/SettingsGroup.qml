import QtQuick

// Settings that belong together, on one card.
Item {
    id: group

    required property Colors colors
    property string title: ""
    default property alias rows: column.data

    width: parent?.width ?? 0
    implicitHeight: card.y + column.height
    height: implicitHeight

    Label {
        id: heading
        anchors { left: parent.left; leftMargin: 18; right: parent.right; rightMargin: 18 }
        colors: group.colors
        color: group.colors.secondaryText
        text: group.title
        visible: text !== ""
        font.pixelSize: Theme.textHelp
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Rectangle {
        id: card
        y: heading.visible ? heading.height + 8 : 0
        width: parent.width
        height: column.height
        radius: 14
        color: group.colors.card
        border.width: 1
        border.color: group.colors.line
    }
    Column {
        id: column
        y: card.y
        width: parent.width
    }
}
