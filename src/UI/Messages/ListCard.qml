import QtQuick
import Fendrel.Style
import Fendrel.Types

// Messages, newest first: the digest of a stretch of work, or what is held for a mode.
Card {
    id: card

    required property MessagesController messages
    required property real room // pixels, that it may be high

    readonly property bool isHovered: hover.hovered

    signal opened()

    readonly property real highest: Math.min(room, 420)
    height: Math.min(highest, list.y + list.contentHeight + 8)

    Accessible.role: Accessible.Grouping
    Accessible.name: messages.listTitle + ", " + messages.listDetail

    function begin() {
        list.currentIndex = 0
        list.positionViewAtBeginning()
    }
    onIsShownChanged: if (isShown) begin()

    HoverHandler { id: hover }

    ModeMark {
        id: mark
        x: 16
        y: 14
        width: 30
        height: 30
        colors: card.colors
        symbol: card.messages.listSymbol
        tint: card.messages.listTint
    }
    Column {
        x: mark.x + mark.width + 12
        anchors.verticalCenter: mark.verticalCenter
        width: card.width - x - 48
        Label {
            colors: card.colors
            width: parent.width
            text: card.messages.listTitle
            font.pixelSize: Theme.textLarge
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            colors: card.colors
            color: card.colors.secondaryText
            width: parent.width
            text: card.messages.listDetail
            font.pixelSize: 12
        }
    }
    CloseButton {
        anchors { right: parent.right; top: parent.top; margins: 9 }
        colors: card.colors
        name: qsTr("Close")
        onPressed: card.closed()
    }

    ListView {
        id: list
        anchors { left: parent.left; right: parent.right; margins: 6 }
        y: 56
        height: card.highest - y - 8 // not the card's, which follows from how long the list is
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height + 1
        clip: interactive
        highlightMoveDuration: Theme.quick
        cacheBuffer: 200
        model: card.messages.list
        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height * count / contentHeight) - 1)
            const steps = new Map([[Qt.Key_Home, -count], [Qt.Key_End, count], [Qt.Key_PageUp, -page], [Qt.Key_PageDown, page]])
            if (!steps.has(event.key))
                return
            currentIndex = Math.max(0, Math.min(count - 1, currentIndex + steps.get(event.key)))
            event.accepted = true
        }

        Accessible.role: Accessible.List
        Accessible.name: card.messages.listTitle

        delegate: MessageRow {
            width: list.width
            colors: card.colors
            onPressed: {
                list.currentIndex = index
                card.messages.open(index)
                card.opened()
            }
        }
    }
    // How much more there is.
    Rectangle {
        visible: list.interactive
        anchors.right: parent.right
        anchors.rightMargin: 3
        y: list.y + list.visibleArea.yPosition * list.height
        width: 3
        height: Math.max(24, list.visibleArea.heightRatio * list.height)
        radius: 1.5
        color: card.colors.secondaryText
        opacity: 0.5
    }
}
