import QtQuick

// Where there is nothing to list: a quiet sentence below a symbol.
Column {
    id: nothing

    required property Colors colors
    required property string text
    property string symbol: "magnifyingglass"

    width: parent?.width ?? 0
    spacing: 10

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: nothing.symbol
        size: Math.round(30 * Theme.textScale)
        color: nothing.colors.control
    }
    Label {
        width: parent.width
        colors: nothing.colors
        color: nothing.colors.secondaryText
        text: nothing.text
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
