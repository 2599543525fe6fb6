import QtQuick
import Fendrel.Style
import Fendrel.Types

// The cards of held messages, beside the dock: the alert above, what was held below.
FocusScope {
    id: root

    required property CardsPanel panel
    required property DockController dock
    required property MessagesController messages

    readonly property bool isVertical: dock.edge !== Qt.BottomEdge
    readonly property int margin: 24 // for the shadows
    readonly property int gap: 12
    readonly property real room: height - 2 * margin

    Colors {
        id: cardColors
        isDark: root.dock.isDark
    }

    readonly property real between: alertCard.isShown && listCard.isShown ? gap : 0
    readonly property real stack: (alertCard.isShown ? alertCard.height : 0) + between + (listCard.isShown ? listCard.height : 0)
    readonly property real stackTop: Math.round(isVertical ? (height - stack) / 2 : height - margin - stack)

    function area(card: Card): rect {
        return card.isShown ? Qt.rect(card.x, card.place, card.width, card.height) : Qt.rect(0, 0, 0, 0)
    }
    Binding { target: root.panel; property: "alertArea"; value: root.area(alertCard) }
    Binding { target: root.panel; property: "listArea"; value: root.area(listCard) }

    // Who reads it with the keyboard looks at it, too.
    readonly property bool isLookedAt: listCard.isHovered || (listCard.isShown && panel.hasKeyboard)
    onIsLookedAtChanged: messages.setHovered(isLookedAt)

    readonly property bool isEmpty: alertCard.presence === 0 && listCard.presence === 0
    onIsEmptyChanged: if (isEmpty) panel.closed()

    function lead(card: Card) { card.forceActiveFocus(Qt.TabFocusReason) }
    // The list has arrows of its own, and leaves those that lead beyond its ends.
    Keys.onPressed: event => {
        const forward = event.key === Qt.Key_Down
        if (forward || event.key === Qt.Key_Up) {
            root.Window.activeFocusItem?.nextItemInFocusChain(forward)?.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
            event.accepted = true
        }
    }
    Connections {
        target: root.panel
        function onKeyboardTaken(isForList: bool) { root.lead(isForList ? listCard : alertCard) }
    }

    AlertCard {
        id: alertCard
        x: root.margin
        width: root.width - 2 * root.margin
        place: root.stackTop
        colors: cardColors
        edge: root.dock.edge
        isTransparent: root.panel.isTransparent
        isShown: root.messages.hasAlert
        messages: root.messages
        onClosed: root.messages.dismissAlert()
        onOpened: root.panel.releaseKeyboard()
        onIsShownChanged: if (!isShown && listCard.isShown && root.panel.hasKeyboard) root.lead(listCard)
    }
    ListCard {
        id: listCard
        x: root.margin
        width: root.width - 2 * root.margin
        place: root.stackTop + (alertCard.isShown ? alertCard.height : 0) + root.between
        room: root.room - (alertCard.isShown ? alertCard.height + root.gap : 0)
        colors: cardColors
        edge: root.dock.edge
        isTransparent: root.panel.isTransparent
        isShown: root.messages.hasList
        messages: root.messages
        onClosed: root.messages.dismissList()
        onOpened: root.panel.releaseKeyboard()
        onIsShownChanged: if (!isShown && alertCard.isShown && root.panel.hasKeyboard) root.lead(alertCard)
    }
}
