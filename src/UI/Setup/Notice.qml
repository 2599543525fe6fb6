import QtQuick
import Fendrel.Style

// One calm sentence on a card, where a list would be empty.
Item {
    id: notice

    required property Colors colors
    required property string symbol
    required property string text

    width: parent?.width ?? 0
    height: words.height + 36

    Rectangle {
        anchors.fill: parent
        radius: 14
        color: notice.colors.card
        border.width: 1
        border.color: notice.colors.line
    }
    Symbol {
        id: mark
        anchors { left: parent.left; leftMargin: 18; verticalCenter: parent.verticalCenter }
        size: Math.round(22 * Theme.textScale)
        name: notice.symbol
        color: notice.colors.secondaryText
    }
    Label {
        id: words
        anchors { left: mark.right; leftMargin: 14; right: parent.right; rightMargin: 18; verticalCenter: parent.verticalCenter }
        colors: notice.colors
        text: notice.text
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
