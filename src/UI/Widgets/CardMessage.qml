import QtQuick
import Fendrel.Style

// A card that has nothing to show: why, and what a press does about it.
Item {
    id: message

    required property CardColors ink
    required property var content
    required property string title
    required property string shortTitle
    required property string symbol
    required property bool isSmall
    required property bool isStacked // under one another, as on a vertical dock

    readonly property bool isWaiting: content.state === "waiting"
    readonly property string words: content.state === "failed" ? content.problem : content.headline
    readonly property string more: content.note !== "" ? content.note : title
    readonly property bool isCentered: isSmall || isStacked

    Symbol {
        id: symbol
        // Margins, not other anchors: a card may get another size, and two anchors at once would set the symbol's.
        anchors {
            left: parent.left
            leftMargin: message.isCentered ? (message.width - size) / 2 : 0
            top: parent.top
            topMargin: message.isStacked && !message.isSmall ? 0 : Math.max(0, (message.height - size - (name.visible ? message.ink.line : 0)) / 2)
        }
        name: message.symbol
        size: Math.min(message.isSmall ? 20 : 24, Math.round(Math.min(message.height, message.width) * 0.5))
        color: message.isWaiting || message.content.state === "empty" ? message.ink.quiet : message.ink.mark
        opacity: message.isWaiting ? 0.55 : 1
    }
    CardMark {
        anchors { right: parent.right; top: parent.top }
        ink: message.ink
        content: message.content
        isSpelled: !message.isSmall && (message.content.state !== "unset" || message.content.problem === "")
    }

    // The smallest has only room for its name.
    CardLabel {
        id: name
        anchors { left: parent.left; leftMargin: -3; right: parent.right; rightMargin: -3; bottom: parent.bottom; bottomMargin: Math.max(0, (message.height - symbol.size - height) / 2 - 1) }
        visible: message.isSmall && message.height >= message.ink.line + 16
        height: message.ink.line
        ink: message.ink
        color: message.ink.quiet
        text: message.shortTitle
        horizontalAlignment: Text.AlignHCenter
        fontSizeMode: Text.HorizontalFit
    }

    Item {
        id: said
        anchors {
            left: message.isStacked ? parent.left : symbol.right
            leftMargin: message.isStacked ? 0 : 10
            right: parent.right
            top: message.isStacked ? symbol.bottom : parent.top
            topMargin: message.isStacked ? 6 : 0
            bottom: parent.bottom
        }
        visible: !message.isSmall

        Column {
            anchors { left: parent.left; right: parent.right; verticalCenter: message.isStacked ? undefined : parent.verticalCenter }
            visible: !message.isWaiting
            spacing: 1
            CardLabel {
                id: words
                width: parent.width
                ink: message.ink
                text: message.words
                font.weight: message.isStacked ? Font.Medium : Font.DemiBold
                wrapMode: message.isStacked ? Text.WordWrap : Text.Wrap
                fontSizeMode: message.isStacked ? Text.HorizontalFit : Text.FixedSize
                maximumLineCount: Math.max(1, Math.floor((said.height + 2) / message.ink.line))
                horizontalAlignment: message.isStacked ? Text.AlignHCenter : Text.AlignLeft
            }
            CardLabel {
                id: about
                width: parent.width
                visible: !message.isStacked && said.height + 2 >= (words.lineCount + 1) * message.ink.line
                ink: message.ink
                color: message.ink.quiet
                text: message.more
                fontSizeMode: Text.HorizontalFit
            }
        }

        // What is to come has its place, and nothing moves there.
        Column {
            anchors { left: parent.left; right: parent.right; verticalCenter: message.isStacked ? undefined : parent.verticalCenter }
            visible: message.isWaiting
            spacing: 7
            Repeater {
                model: [0.8, 0.55]
                Rectangle {
                    required property real modelData
                    anchors.left: parent?.left
                    width: Math.round(said.width * modelData)
                    height: 7
                    radius: 3.5
                    color: message.ink.text
                    opacity: 0.1
                }
            }
        }
    }
}
