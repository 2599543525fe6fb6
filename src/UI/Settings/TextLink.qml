import QtQuick
import Fendrel.Style

// Words that lead somewhere, with a symbol before them.
Item {
    id: link

    required property Colors colors
    required property string text
    required property string symbol
    property color shade: colors.tintText(colors.accent)

    signal opened()

    anchors.left: parent.left
    width: Math.min(parent.width, mark.width + 6 + Math.ceil(words.implicitWidth))
    height: Math.max(mark.height, words.height) + 2
    activeFocusOnTab: visible
    Accessible.role: Accessible.Link
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: opened()
    Keys.onReturnPressed: opened()
    Keys.onEnterPressed: opened()
    Keys.onSpacePressed: opened()

    Symbol {
        id: mark
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        name: link.symbol
        size: Math.round(13 * Math.max(1, Theme.textScale))
        color: link.shade
    }
    Label {
        id: words
        anchors { left: mark.right; leftMargin: 6; right: parent.right; verticalCenter: parent.verticalCenter }
        colors: link.colors
        color: link.shade
        text: link.text
        font.pixelSize: Theme.textHelp
        font.underline: hover.hovered
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    FocusRing { target: link; targetRadius: 4; gap: 2 }
    HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
    TapHandler { onTapped: link.opened() }
}
