import QtQuick

// A setting: its label, one sentence of help, and its control at the right.
Item {
    id: row

    required property Colors colors
    required property string label
    required property string help
    default property alias control: slot.data

    width: parent.width
    height: Math.max(words.height, slot.childrenRect.height) + 28

    Column {
        id: words
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - slot.width - 54
        spacing: 3
        Label {
            colors: row.colors
            text: row.label
            font.weight: Font.Medium
            width: parent.width
        }
        Label {
            colors: row.colors
            color: row.colors.secondaryText
            text: row.help
            font.pixelSize: 12
            wrapMode: Text.Wrap
            width: parent.width
        }
    }
    Item {
        id: slot
        anchors { right: parent.right; rightMargin: 18; verticalCenter: parent.verticalCenter }
        width: childrenRect.width
        height: childrenRect.height
    }
    Rectangle {
        anchors.bottom: parent.bottom
        x: 18
        width: parent.width - 18
        height: 1
        color: row.colors.line
        visible: row.parent.children[row.parent.children.length - 1] !== row
    }
}
