import QtQuick
import Fendrel.Style

// One message of a list: its application, who wrote and what, and why it was urgent. Pressed, it opens the application.
Item {
    id: row

    required property Colors colors
    required property int index
    required property string icon
    required property string appName
    required property string title
    required property string body
    required property string time
    required property string why

    signal pressed()

    function after(text: string): string { return text === "" ? "" : ", " + text }

    implicitHeight: words.height + 20

    Accessible.role: Accessible.ListItem
    Accessible.name: appName + ", " + title + after(body) + after(why) + after(time)
    Accessible.focusable: true
    Accessible.onPressAction: pressed()

    Keys.onSpacePressed: event => { if (!event.isAutoRepeat) pressed() }
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) pressed() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) pressed() }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: tap.pressed ? row.colors.pressed : hover.hovered ? row.colors.hover : "transparent"
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }

    Image {
        id: picture
        x: 10
        y: 12
        width: 32
        height: 32
        sourceSize { width: 64; height: 64 }
        source: row.icon
        asynchronous: true
        mipmap: true
        Accessible.ignored: true
    }
    Column {
        id: words
        x: picture.x + picture.width + 12
        y: 10
        width: row.width - x - 10
        spacing: 2

        Item {
            width: parent.width
            height: app.height
            Label {
                id: app
                colors: row.colors
                color: row.colors.secondaryText
                width: parent.width - time.width - 12
                text: row.appName
                font.pixelSize: Theme.textSmall
                Accessible.ignored: true
            }
            Label {
                id: time
                anchors.right: parent.right
                colors: row.colors
                color: row.colors.secondaryText
                text: row.time
                font.pixelSize: Theme.textSmall
                Accessible.ignored: true
            }
        }
        Label {
            colors: row.colors
            width: parent.width
            text: row.title
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
        Label {
            colors: row.colors
            color: row.colors.secondaryText
            width: parent.width
            text: row.body
            visible: text !== ""
            Accessible.ignored: true
        }
        Why {
            colors: row.colors
            text: row.why
            room: parent.width
        }
    }
    FocusRing { target: row; targetRadius: Theme.radius; gap: -2 }
    HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
    TapHandler {
        id: tap
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: row.pressed()
    }
}
