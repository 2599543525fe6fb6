import QtQuick
import Fendrel.Style
import Fendrel.Types

// The modes in their order. The pointer drags one elsewhere; Alt with an arrow moves the chosen one.
FocusScope {
    id: root

    required property Colors colors
    required property ModesController modes
    readonly property real scaling: Math.max(1, Theme.textScale)
    readonly property int rowHeight: Math.round(44 * scaling)

    component ModeRow: FocusScope {
        id: row
        required property int index
        required property string modeID
        required property string name
        required property string symbol
        required property color tint
        required property string hotKey
        required property bool isCurrent
        readonly property bool isChosen: root.modes.editor.modeID === modeID
        readonly property color foreground: isChosen ? "white" : root.colors.text

        width: ListView.view.width
        height: root.rowHeight
        z: drag.active ? 1 : 0
        activeFocusOnTab: isChosen || activeFocus
        Accessible.role: Accessible.ListItem
        Accessible.name: name
        Accessible.description: isCurrent ? qsTr("Current mode") : hotKey
        Accessible.selected: isChosen
        Accessible.focusable: true
        Accessible.onPressAction: choose()
        Keys.onReturnPressed: choose()
        Keys.onSpacePressed: choose()
        Keys.onDeletePressed: {
            root.modes.remove(modeID)
            Qt.callLater(root.step, root.modes.list.position(root.modes.editor.modeID))
        }
        Keys.onPressed: event => {
            const by = event.key === Qt.Key_Up ? -1 : event.key === Qt.Key_Down ? 1 : 0
            if (by === 0)
                return
            event.accepted = true
            if (event.modifiers & Qt.AltModifier)
                root.modes.move(index, index + by)
            else
                root.step(index + by)
        }
        function choose() {
            forceActiveFocus(Qt.MouseFocusReason) // a field that is left takes over what was typed in it
            root.modes.editor.edit(modeID)
        }

        Item {
            id: card
            width: row.width
            height: row.height
            transform: Translate {
                y: list.giveWay(row.index)
                Behavior on y { enabled: list.carried >= 0; NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
            }

            Rectangle {
                anchors { fill: parent; topMargin: 1; bottomMargin: 1 }
                radius: Theme.radius
                color: row.isChosen ? root.colors.accent : drag.active ? root.colors.card : hover.hovered ? root.colors.hover : "transparent"
                border.width: drag.active ? 1 : 0
                border.color: root.colors.line
            }
            Rectangle {
                id: tile
                anchors { left: parent.left; leftMargin: 8; verticalCenter: parent.verticalCenter }
                width: Math.round(28 * root.scaling)
                height: width
                radius: Math.round(width * 0.28)
                color: row.tint
                border.width: row.isChosen ? 1 : 0
                border.color: "#66ffffff"
                Symbol {
                    anchors.centerIn: parent
                    name: row.symbol
                    size: Math.round(16 * root.scaling)
                    color: root.colors.onTint(row.tint)
                }
            }
            Label {
                anchors { left: tile.right; leftMargin: 10; right: mark.visible ? mark.left : key.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
                colors: root.colors
                color: row.foreground
                text: row.name
                font.weight: row.isChosen ? Font.DemiBold : Font.Normal
                Accessible.ignored: true
            }
            Rectangle {
                id: mark
                anchors { right: key.left; rightMargin: row.hotKey === "" ? 0 : 8; verticalCenter: parent.verticalCenter }
                visible: row.isCurrent
                width: 7
                height: 7
                radius: 3.5
                color: row.isChosen ? "white" : root.colors.accent
            }
            Label {
                id: key
                anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
                colors: root.colors
                color: row.isChosen ? "white" : root.colors.secondaryText
                text: row.hotKey
                font.pixelSize: Theme.textHelp
                Accessible.ignored: true
            }
        }
        FocusRing { target: row; targetRadius: Theme.radius; gap: -1; visible: row.activeFocus && !drag.active; ringColor: row.isChosen ? "#b3ffffff" : "#2f7df0" }
        HoverHandler { id: hover; cursorShape: drag.active ? Qt.ClosedHandCursor : Qt.ArrowCursor }
        TapHandler { onTapped: row.choose() }
        DragHandler {
            id: drag
            target: card
            xAxis.enabled: false
            yAxis.minimum: -row.y
            yAxis.maximum: list.contentHeight - row.height - row.y
            onActiveChanged: {
                if (active) {
                    row.choose()
                    list.carry(row.index, row.y)
                    return
                }
                const to = list.slot
                list.carried = -1
                card.y = 0
                root.modes.move(row.index, to)
            }
            onCentroidChanged: if (active) list.carry(row.index, row.y + card.y)
        }
    }

    function showChosen() {
        list.forceLayout() // a new row has no place yet
        list.currentIndex = modes.list.position(modes.editor.modeID)
        list.positionViewAtIndex(list.currentIndex, ListView.Contain)
    }
    function step(to: int) {
        if (to < 0 || to >= list.count)
            return
        list.positionViewAtIndex(to, ListView.Contain)
        const next = list.itemAtIndex(to) as ModeRow
        next?.choose()
    }
    readonly property string chosen: modes.editor.modeID
    onChosenChanged: showChosen()
    Component.onCompleted: showChosen()

    ListView {
        id: list
        anchors.fill: parent
        focus: true
        highlightFollowsCurrentItem: false
        model: root.modes.list
        clip: true
        interactive: contentHeight > height && carried < 0
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Modes")
        delegate: ModeRow {}
        // What the pointer carries, and where it would come to lie.
        property int carried: -1
        property int slot: -1
        function carry(from: int, y: real) {
            carried = from
            slot = Math.max(0, Math.min(count - 1, Math.round(y / root.rowHeight)))
        }
        // How far a row moves aside, so that the list looks as it would be.
        function giveWay(index: int): real {
            if (carried < 0 || index === carried)
                return 0
            return index > carried && index <= slot ? -root.rowHeight : index < carried && index >= slot ? root.rowHeight : 0
        }
    }
}
