import QtQuick
import Fendrel.Style
import Fendrel.Types

// The windows of the application that the pointer rests on, beside its button. It is for the pointer alone: the keyboard
// reaches the windows through the button's menu.
BesideWindow {
    id: popover
    title: qsTr("Fendrel windows")

    required property Colors colors
    required property DockPanel panel
    required property DockController dock
    required property bool isTransparent
    property bool isSuppressed: false // a menu is open, or something is carried

    readonly property RestingPointer pointer: dock.restingPointer
    readonly property AppButton button: {
        const item = pointer.item as AppButton
        return item && item.Window.window === panel ? item : null
    }
    readonly property bool isWanted: button !== null && cards.count > 0 && !isSuppressed
    property string name: ""
    property string icon: ""

    readonly property int margin: isTransparent ? 18 : 0
    readonly property int inset: 8
    readonly property int bridge: 10 // between the bar and the window: the pointer crosses it
    readonly property bool isList: !dock.previews.isAvailable
    readonly property int columns: isList ? 1 : panel.edge === Qt.BottomEdge ? Math.min(cards.count, 6) : cards.count > 4 ? 2 : 1

    onButtonChanged: {
        if (!button)
            return
        name = button.name
        icon = button.icon
        place()
    }
    onIsWantedChanged: {
        if (isWanted)
            place()
        else
            hide()
    }
    onIsSuppressedChanged: if (isSuppressed) pointer.close()

    readonly property int wantedWidth: grid.implicitWidth + 2 * (inset + margin)
    readonly property int wantedHeight: header.height + grid.implicitHeight + 2 * (inset + margin)
    onWantedWidthChanged: place()
    onWantedHeightChanged: place()

    function place() {
        if (!isWanted)
            return
        grid.forceLayout()
        width = wantedWidth
        height = wantedHeight
        const corner = button.mapToItem(null, 0, 0)
        // What is not the card lets the pointer through, but for the way from the bar.
        const room = Qt.rect(margin, margin, width - 2 * margin, height - 2 * margin)
        const input = panel.edge === Qt.BottomEdge ? Qt.rect(room.x, room.y, room.width, room.height + bridge)
                    : panel.edge === Qt.LeftEdge ? Qt.rect(room.x - bridge, room.y, room.width + bridge, room.height)
                    : Qt.rect(room.x, room.y, room.width + bridge, room.height)
        panel.openBeside(popover, Qt.rect(corner.x, corner.y, button.width, button.height), bridge - margin, input)
        if (content.opacity < 1)
            appear.start()
    }

    Item {
        id: content
        anchors.fill: parent
        anchors.margins: popover.margin

        NumberAnimation { id: appear; target: content; property: "opacity"; from: 0; to: 1; duration: Theme.quick }

        Shadow { caster: back; casterRadius: back.radius; blur: 14; opacity: 0.35; visible: popover.isTransparent }
        Rectangle {
            id: back
            anchors.fill: parent
            radius: popover.isTransparent ? 14 : 0
            color: popover.colors.card
            border.width: 1
            border.color: Qt.tint(popover.colors.card, popover.colors.line)
        }
        Label {
            id: header
            x: popover.inset + 8
            width: parent.width - 2 * x
            height: 28
            verticalAlignment: Text.AlignVCenter
            colors: popover.colors
            text: popover.name
            font.weight: Font.DemiBold
        }
        Flickable {
            id: scroller
            x: popover.inset
            y: header.height + popover.inset / 2
            width: parent.width - 2 * x
            height: parent.height - y - popover.inset
            contentHeight: grid.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height + 1
            clip: interactive

            Grid {
                id: grid
                columns: Math.max(1, popover.columns)
                spacing: popover.isList ? 2 : 4

                Repeater {
                    id: cards
                    model: popover.dock.windows
                    WindowCard {
                        colors: popover.colors
                        previews: popover.dock.previews
                        icon: popover.icon
                        tint: popover.dock.tint
                        onChosen: {
                            popover.dock.actions.raiseWindow(windowID)
                            popover.pointer.close()
                        }
                        onClosed: popover.dock.actions.closeWindow(windowID)
                    }
                }
            }
        }
    }

    Item {
        anchors.fill: parent
        HoverHandler {
            onHoveredChanged: {
                if (hovered)
                    popover.pointer.enterShown()
                else
                    popover.pointer.leaveShown()
            }
        }
    }
}
