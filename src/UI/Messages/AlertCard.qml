import QtQuick
import Fendrel.Style
import Fendrel.Types

// A message of another mode that the user should see now: from whom, why, and the way there.
Card {
    id: card

    required property MessagesController messages

    signal opened()

    height: 16 + Math.max(picture.height, words.height) + 14 + open.height + 16

    Accessible.role: Accessible.AlertMessage
    Accessible.name: messages.alertTitle + ", " + messages.alertApp + ", " + messages.alertWhy
    Accessible.description: messages.alertText

    Image {
        id: picture
        x: 16
        y: 16
        width: 44
        height: 44
        sourceSize { width: 88; height: 88 }
        source: card.messages.alertIcon
        asynchronous: true
        mipmap: true
        Accessible.ignored: true
    }
    ModeMark {
        x: picture.x + picture.width - 16
        y: picture.y + picture.height - 17
        width: 22
        height: 22
        colors: card.colors
        symbol: card.messages.alertSymbol
        tint: card.messages.alertTint
        border.width: 2
        border.color: card.colors.card
    }

    Column {
        id: words
        x: picture.x + picture.width + 14
        y: 14
        width: card.width - x - 16
        spacing: 3

        Label {
            colors: card.colors
            color: card.colors.secondaryText
            width: parent.width - 28
            text: card.messages.alertApp + " · " + card.messages.alertTime
            font.pixelSize: 12
        }
        Label {
            colors: card.colors
            width: parent.width - 28
            text: card.messages.alertTitle
            font.pixelSize: Theme.textLarge
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        Label {
            colors: card.colors
            width: parent.width
            visible: text !== ""
            text: card.messages.alertText
            wrapMode: Text.Wrap
            maximumLineCount: 3
            lineHeight: 1.15
        }
        Item { width: 1; height: 1; visible: why.visible }
        Why {
            id: why
            colors: card.colors
            text: card.messages.alertWhy
            room: parent.width
        }
    }

    PushButton {
        id: open
        x: words.x
        y: card.height - height - 16
        width: words.width
        height: 36
        focus: true
        colors: card.colors
        isFilled: true
        tint: card.messages.alertTint
        symbol: "arrow.right"
        text: qsTr("Open in %1").arg(card.messages.alertMode)
        detail: card.messages.alertWait
        onClicked: {
            card.messages.go()
            card.opened()
        }
    }
    CloseButton {
        anchors { right: parent.right; top: parent.top; margins: 9 }
        colors: card.colors
        name: qsTr("Dismiss")
        onPressed: card.closed()
    }
}
