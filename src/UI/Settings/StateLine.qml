import QtQuick
import Fendrel.Style

// How something stands now: well, or why not.
Item {
    id: state

    required property Colors colors
    required property string problem
    required property string well
    property int margin: 18 // as the text on a card above it
    readonly property bool isWell: problem === ""
    readonly property color shade: isWell ? colors.secondaryText : colors.warning

    width: parent?.width ?? 0
    implicitHeight: words.height

    Symbol {
        id: mark
        anchors { left: parent.left; leftMargin: state.margin }
        name: state.isWell ? "checkmark" : "info.circle"
        size: Math.round(15 * Theme.textScale)
        color: state.shade
    }
    Label {
        id: words
        anchors { left: mark.right; leftMargin: 7; right: parent.right; rightMargin: state.margin }
        colors: state.colors
        color: state.shade
        text: state.isWell ? state.well : state.problem
        font.pixelSize: Theme.textHelp
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
