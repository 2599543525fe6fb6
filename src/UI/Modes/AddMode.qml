import QtQuick
import Fendrel.Style
import Fendrel.Types

// What a new mode can be made from, in a card above the button that opens it.
FocusScope {
    id: root

    required property Colors colors
    required property ModesController modes
    required property rect corner // of the button

    signal closed()

    readonly property real scaling: Math.max(1, Theme.textScale)
    readonly property var templates: modes.templates
    readonly property var entries: templates.concat([{ id: "", name: qsTr("Empty Mode"), symbol: "plus", tint: colors.secondaryText }])

    visible: false
    Keys.onEscapePressed: close()

    function open() {
        visible = true
        choices.currentIndex = 0
        choices.forceActiveFocus(Qt.PopupFocusReason)
    }
    function close() {
        if (!visible)
            return
        visible = false
        closed()
    }
    function take(id: string) {
        close()
        modes.add(id)
    }

    MouseArea {
        anchors.fill: parent
        onPressed: root.close()
    }
    Shadow { caster: card; casterRadius: card.radius; opacity: 0.35 }
    Rectangle {
        id: card
        readonly property real wanted: Math.max(root.corner.width, Math.min(root.width - 24, Math.round(232 * root.scaling)))
        x: root.LayoutMirroring.enabled ? root.corner.x + root.corner.width - width : root.corner.x
        y: root.corner.y - height - 8
        width: wanted
        height: Math.min(choices.contentHeight + 12, root.corner.y - 20)
        radius: 14
        color: root.colors.card
        border.width: 1
        border.color: root.colors.line

        ListView {
            id: choices
            anchors { fill: parent; margins: 6 }
            model: root.entries
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            keyNavigationEnabled: true
            highlightMoveDuration: 0
            Accessible.role: Accessible.List
            Accessible.name: qsTr("New mode from")

            delegate: Item {
                id: entry
                required property var modelData
                required property int index
                width: ListView.view.width
                height: Math.max(Math.round(38 * root.scaling), label.implicitHeight + 14)
                Accessible.role: Accessible.ListItem
                Accessible.name: modelData.name
                Accessible.focusable: true
                Accessible.onPressAction: root.take(modelData.id)
                Keys.onReturnPressed: root.take(modelData.id)
                Keys.onSpacePressed: root.take(modelData.id)
                Keys.onTabPressed: root.close()
                Keys.onBacktabPressed: root.close()

                Rectangle {
                    anchors.fill: parent
                    radius: 9
                    color: entry.activeFocus ? root.colors.accent : hover.hovered ? root.colors.hover : "transparent"
                }
                Symbol {
                    id: symbol
                    anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
                    name: entry.modelData.symbol
                    size: Math.round(18 * root.scaling)
                    color: entry.activeFocus ? "white" : entry.modelData.id === "" ? root.colors.text : root.colors.tintText(entry.modelData.tint)
                }
                Label {
                    id: label
                    anchors { left: symbol.right; leftMargin: 10; right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
                    colors: root.colors
                    color: entry.activeFocus ? "white" : root.colors.text
                    text: entry.modelData.name
                    Accessible.ignored: true
                }
                HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor; onHoveredChanged: if (hovered) choices.currentIndex = entry.index }
                TapHandler { onTapped: root.take(entry.modelData.id) }
            }
        }
    }
}
