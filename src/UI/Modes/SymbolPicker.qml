import QtQuick
import Fendrel.Style
import Fendrel.Types

// The symbols that a mode can have, found by what they show or stand for.
FocusScope {
    id: picker

    required property Colors colors
    required property ModeEditor editor
    property string words: ""
    readonly property var symbols: editor.findSymbols(words)

    signal closed()

    readonly property int least: Math.round(44 * Math.max(1, Theme.textScale))
    readonly property int columns: Math.max(1, Math.floor(width / least))
    readonly property int cell: Math.floor(width / columns) // no gap at the end of a line
    implicitHeight: field.height + 10 + grid.height

    Keys.onEscapePressed: closed()

    InputField {
        id: field
        width: parent.width
        colors: picker.colors
        focus: true
        name: qsTr("Search symbols")
        placeholder: name
        symbol: "magnifyingglass"
        onEdited: text => picker.words = text
        onAccepted: if (picker.symbols.length > 0) picker.take(picker.symbols[0].name)
        Keys.onDownPressed: grid.forceActiveFocus(Qt.TabFocusReason)
    }
    function take(name: string) { picker.editor.symbol = name }

    GridView {
        id: grid
        anchors { top: field.bottom; topMargin: 10; left: parent.left; right: parent.right }
        height: picker.cell * Math.max(1, Math.min(4.5, Math.ceil(count / picker.columns)))
        cellWidth: picker.cell
        cellHeight: picker.cell
        model: picker.symbols
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Symbols")
        Keys.onUpPressed: event => {
            if (currentIndex < picker.columns)
                field.forceActiveFocus(Qt.BacktabFocusReason)
            else
                event.accepted = false
        }

        delegate: Item {
            id: entry
            required property var modelData
            readonly property bool isChosen: picker.editor.symbol === modelData.name
            width: picker.cell
            height: picker.cell
            Accessible.role: Accessible.RadioButton
            Accessible.name: modelData.label
            Accessible.checkable: true
            Accessible.checked: isChosen
            Accessible.focusable: true
            Accessible.onPressAction: picker.take(modelData.name)
            Keys.onReturnPressed: picker.take(modelData.name)
            Keys.onSpacePressed: picker.take(modelData.name)

            Rectangle {
                id: back
                anchors { fill: parent; margins: 3 }
                radius: 9
                color: entry.isChosen ? picker.colors.accent : hover.hovered ? picker.colors.hover : "transparent"
            }
            Symbol {
                anchors.centerIn: parent
                name: entry.modelData.name
                size: Math.round(picker.least * 0.5)
                color: entry.isChosen ? "white" : picker.colors.text
            }
            FocusRing { target: entry; targetRadius: 9; gap: -2; ringColor: entry.isChosen ? picker.colors.text : picker.colors.accent }
            HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
            TapHandler { onTapped: picker.take(entry.modelData.name) }
        }

        Label {
            anchors.centerIn: parent
            visible: grid.count === 0
            colors: picker.colors
            color: picker.colors.secondaryText
            text: qsTr("No symbol is found")
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
