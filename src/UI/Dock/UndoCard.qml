import QtQuick
import Fendrel.Style
import Fendrel.Types

// The offer to take back what was just done to a mode. It stays while the pointer is on it.
BesideWindow {
    id: card
    title: qsTr("Fendrel undo")

    required property Colors colors
    required property DockPanel panel
    required property UndoController undo
    required property bool isTransparent
    required property real rise // pixels by which icons may stand out of the bar, and their labels with them
    required property rect label // of the bar's item that says what it is; empty: none

    readonly property int margin: isTransparent ? 22 : 0
    readonly property bool isWanted: undo.isOffered && panel.isShown
    readonly property int textWidth: Math.min(Math.ceil(text.implicitWidth), 360)

    width: 16 + mark.width + 10 + textWidth + 14 + button.width + 8 + 2 * margin
    height: 48 + 2 * margin

    readonly property rect bar: panel.bar
    property real middle: 0 // down the window

    onIsWantedChanged: {
        if (!isWanted) {
            leave.start()
            return
        }
        leave.stop()
        middle = bar.y + bar.height / 2
        giveWay()
        open()
    }
    onWidthChanged: if (isWanted) open()
    function open() {
        place()
        appear.restart()
    }
    onBarChanged: place()
    onRiseChanged: place()
    onMiddleChanged: place()
    onLabelChanged: giveWay()

    // Above the lower edge it is always farther away than labels are. Beside the others it moves up when one comes there,
    // or down where it would not fit, and stays: the pointer may be on its way to it.
    function giveWay() {
        const center = label.y + label.height / 2
        const away = (label.height + content.height) / 2 + 6
        if (isWanted && panel.edge !== Qt.BottomEdge && label.width > 0 && Math.abs(center - middle) < away)
            middle = center - away < height / 2 + 8 ? center + away : center - away
    }
    function place() {
        if (!isWanted)
            return
        const gap = (panel.edge === Qt.BottomEdge ? 46 + rise : 12) - margin
        const input = Qt.rect(margin, margin, width - 2 * margin, height - 2 * margin)
        panel.openBeside(card, Qt.rect(bar.x + bar.width / 2, middle, 0, 0), gap, input)
    }

    Item {
        id: content
        anchors.fill: parent
        anchors.margins: card.margin

        Accessible.role: Accessible.AlertMessage
        Accessible.name: card.undo.text

        ParallelAnimation {
            id: appear
            NumberAnimation { target: content; property: "opacity"; to: 1; duration: Theme.quick }
            NumberAnimation { target: content; property: "scale"; from: Theme.reducesMotion ? 1 : 0.95; to: 1; duration: Theme.normal; easing.type: Easing.OutCubic }
        }
        SequentialAnimation {
            id: leave
            NumberAnimation { target: content; property: "opacity"; to: 0; duration: Theme.quick }
            ScriptAction { script: card.hide() }
        }

        Shadow { caster: back; casterRadius: back.radius; blur: 18; opacity: 0.35; visible: card.isTransparent }
        Rectangle {
            id: back
            anchors.fill: parent
            radius: card.isTransparent ? 14 : 0
            color: card.colors.card
            border.width: 1
            border.color: Qt.tint(card.colors.card, card.colors.line)
        }
        Rectangle {
            id: mark
            x: 16
            anchors.verticalCenter: parent.verticalCenter
            width: 10
            height: 10
            radius: 5
            color: card.undo.tint
        }
        Label {
            id: text
            x: mark.x + mark.width + 10
            width: card.textWidth
            anchors.verticalCenter: parent.verticalCenter
            colors: card.colors
            text: card.undo.text
            font.weight: Font.Medium
            Accessible.ignored: true
        }
        PushButton {
            id: button
            anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
            implicitHeight: 32
            colors: card.colors
            text: qsTr("Undo")
            tint: card.undo.tint
            isFilled: true
            activeFocusOnTab: false
            onClicked: card.undo.undo()
        }
        HoverHandler { onHoveredChanged: card.undo.setHovered(hovered) }
    }
}
