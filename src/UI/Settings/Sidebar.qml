import QtQuick
import Fendrel.Style

// The panes by name, below the field that searches all of them.
Rectangle {
    id: sidebar

    required property Colors colors
    required property var panes // id, name and symbol of each
    required property int current // none of them while a search is shown: -1
    property alias query: field.text

    signal chosen(pane: string)
    signal resultsWanted() // the keyboard wants to go on to what was found
    signal firstWanted() // the first of them is the one

    function search() {
        field.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    color: colors.hover
    implicitWidth: Math.ceil(panes.reduce((width, pane) => Math.max(width, metrics.advanceWidth(pane.name)), 6.5 * metrics.height))
        + symbolSize + 58

    readonly property int symbolSize: Math.round(18 * Theme.textScale)

    FontMetrics {
        id: metrics
        font.pixelSize: Theme.text
        font.weight: Font.DemiBold
    }

    InputField {
        id: field
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12 }
        implicitHeight: Math.ceil(metrics.height) + 18
        colors: sidebar.colors
        name: qsTr("Search settings")
        placeholder: qsTr("Search")
        symbol: "magnifyingglass"
        isClearable: true
        onAccepted: sidebar.firstWanted()
        Keys.onDownPressed: sidebar.resultsWanted()
        Keys.onEscapePressed: event => {
            event.accepted = text !== ""
            text = ""
        }
    }

    ScrollArea {
        anchors { left: parent.left; right: parent.right; top: field.bottom; topMargin: 10; bottom: parent.bottom }
        colors: sidebar.colors
        contentHeight: list.height + 12
        Column {
            id: list
            anchors { left: parent.left; right: parent.right; margins: 12 }
            spacing: 2
            Accessible.role: Accessible.PageTabList
            Accessible.name: qsTr("Settings")

            Repeater {
                id: tabs
                model: sidebar.panes
                Item {
                    id: tab
                    required property var modelData
                    required property int index
                    readonly property bool isCurrent: sidebar.current === index
                    readonly property color foreground: isCurrent ? "white" : sidebar.colors.text
                    width: parent?.width ?? 0
                    height: Math.max(36, Math.ceil(metrics.height) + 16)
                    activeFocusOnTab: true
                    Accessible.role: Accessible.PageTab
                    Accessible.name: modelData.name
                    Accessible.selected: isCurrent
                    Accessible.focusable: true
                    Accessible.onPressAction: open()
                    function open() { sidebar.chosen(modelData.id) }
                    Keys.onReturnPressed: open()
                    Keys.onSpacePressed: open()
                    Keys.onDownPressed: tabs.itemAt(index + 1)?.forceActiveFocus(Qt.TabFocusReason)
                    Keys.onUpPressed: tabs.itemAt(index - 1)?.forceActiveFocus(Qt.BacktabFocusReason)

                    Rectangle {
                        anchors.fill: parent
                        radius: 9
                        color: tab.isCurrent ? sidebar.colors.accent : hover.hovered ? sidebar.colors.hover : "transparent"
                        Behavior on color { ColorAnimation { duration: Theme.quick } }
                    }
                    Symbol {
                        id: mark
                        anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
                        name: tab.modelData.symbol
                        size: sidebar.symbolSize
                        color: tab.isCurrent ? "white" : sidebar.colors.secondaryText
                    }
                    Label {
                        anchors { left: mark.right; leftMargin: 10; right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
                        colors: sidebar.colors
                        color: tab.foreground
                        text: tab.modelData.name
                        font.weight: tab.isCurrent ? Font.DemiBold : Font.Normal
                        Accessible.ignored: true
                    }
                    FocusRing { target: tab; targetRadius: 9; gap: 2 }
                    HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
                    TapHandler {
                        onTapped: {
                            // A field that is left takes over what was typed in it.
                            const focused = tab.Window.activeFocusItem
                            if (focused)
                                focused.focus = false
                            tab.open()
                        }
                    }
                }
            }
        }
    }
}
