import QtQuick
import Fendrel.Style
import Fendrel.Types

// One window of an application: what it shows, or its icon where nobody may look, with its title.
Item {
    id: card

    required property Colors colors
    required property PreviewSource previews
    required property string icon
    required property color tint
    required property int index
    required property real windowID
    required property string title
    required property bool isMinimized
    required property bool isFront

    signal chosen()
    signal closed()

    readonly property size room: Qt.size(176, 110)
    readonly property bool isList: !previews.isAvailable // titles alone

    implicitWidth: isList ? 280 : room.width + 16
    implicitHeight: isList ? 36 : room.height + 16 + 28

    Accessible.role: Accessible.Button
    Accessible.name: isMinimized ? qsTr("%1, minimized").arg(title) : isFront ? qsTr("%1, in front").arg(title) : title
    Accessible.onPressAction: chosen()

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: tap.pressed ? card.colors.pressed : hover.hovered ? card.colors.hover : card.colors.faded(card.colors.text, 0)
        border.width: card.isFront ? 1.5 : 0
        border.color: card.tint
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }

    WindowPicture {
        id: picture
        x: 8
        y: 8
        width: card.room.width
        height: card.room.height
        visible: !card.isList
        source: card.previews
        windowID: card.windowID
        room: card.room
        radius: 5
        opacity: card.isMinimized ? 0.55 : 1
        Accessible.ignored: true
    }
    Rectangle {
        x: picture.x + picture.place.x
        y: picture.y + picture.place.y
        width: picture.place.width
        height: picture.place.height
        visible: picture.visible && picture.hasPicture
        radius: 5
        color: "transparent"
        border.width: 1
        border.color: card.colors.line
    }
    Rectangle {
        anchors.fill: picture
        visible: picture.visible && !picture.hasPicture
        radius: 5
        color: card.colors.hover
        Image {
            anchors.centerIn: parent
            source: card.icon
            sourceSize { width: 96; height: 96 }
            width: 48
            height: 48
            mipmap: true
            Accessible.ignored: true
        }
    }
    Rectangle {
        visible: picture.visible && card.isMinimized
        anchors { horizontalCenter: picture.horizontalCenter; bottom: picture.bottom; bottomMargin: 6 }
        width: minimized.implicitWidth + 16
        height: 20
        radius: 10
        color: "#d0202127"
        Text {
            id: minimized
            anchors.centerIn: parent
            text: qsTr("Minimized")
            color: "#f6f7f9"
            font.pixelSize: Theme.textSmall
            Accessible.ignored: true
        }
    }

    Image {
        id: badge
        x: card.isList ? 10 : 8
        y: card.height - (card.isList ? 27 : 26)
        width: card.isList ? 18 : 16
        height: width
        source: card.icon
        sourceSize { width: 36; height: 36 }
        mipmap: true
        opacity: card.isMinimized ? 0.55 : 1
        Accessible.ignored: true
    }
    Label {
        x: badge.x + badge.width + 7
        width: card.width - x - (card.isList ? 36 : 8)
        anchors.verticalCenter: badge.verticalCenter
        colors: card.colors
        color: card.isMinimized ? card.colors.secondaryText : card.colors.text
        text: card.title
        font.pixelSize: 12
        font.weight: card.isFront ? Font.DemiBold : Font.Normal
        Accessible.ignored: true
    }

    HoverHandler { id: hover }
    TapHandler {
        id: tap
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: card.chosen()
    }
    TapHandler {
        acceptedButtons: Qt.MiddleButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: card.closed()
    }

    Rectangle {
        visible: hover.hovered
        x: card.isList ? card.width - 30 : picture.x + picture.width - 16
        y: card.isList ? 6 : 2
        width: 24
        height: 24
        radius: 12
        color: closing.pressed ? card.colors.warning : card.isList && !closeHover.hovered ? "transparent" : card.colors.card
        border.width: card.isList && !closeHover.hovered ? 0 : 1
        border.color: Qt.tint(card.colors.card, card.colors.line)
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Close %1").arg(card.title)
        Accessible.onPressAction: card.closed()

        Symbol {
            anchors.centerIn: parent
            name: "xmark"
            size: 13
            color: closing.pressed ? card.colors.card : card.colors.text
        }
        HoverHandler { id: closeHover }
        TapHandler {
            id: closing
            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: card.closed()
        }
    }
}
