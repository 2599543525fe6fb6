import QtQuick
import Fendrel.Style

// A card beside the dock: it comes from there, and goes back there when it is closed.
FocusScope {
    id: card

    required property Colors colors
    required property bool isShown
    required property bool isTransparent
    required property int edge // that the dock is at
    required property real place // where its top is to be
    default property alias content: body.data

    signal closed()

    // Follows what it is told while it is seen, and is simply there when it comes.
    property real presence: isShown ? 1 : 0
    Behavior on presence { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
    readonly property real away: (1 - presence) * 24

    y: place
    Behavior on y { enabled: card.isShown && card.presence > 0; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
    opacity: presence
    visible: presence > 0
    enabled: isShown
    transform: Translate {
        x: card.edge === Qt.LeftEdge ? -card.away : card.edge === Qt.RightEdge ? card.away : 0
        y: card.edge === Qt.BottomEdge ? card.away : 0
    }

    Keys.onEscapePressed: closed()

    Shadow { caster: back; casterRadius: back.radius; blur: 20; drop: 4; opacity: 0.32; visible: card.isTransparent }
    Rectangle {
        id: back
        anchors.fill: parent
        radius: card.isTransparent ? Theme.radiusLarge : 0
        color: card.colors.card
        border.width: 1
        border.color: Qt.tint(card.colors.card, card.colors.line)
    }
    Item {
        id: body
        anchors.fill: parent
    }
}
