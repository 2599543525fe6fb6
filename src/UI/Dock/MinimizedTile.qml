import QtQuick
import Fendrel.Style
import Fendrel.Types

// A window that was minimised: what was last seen of it with its application's icon at the corner, else the icon.
DockItem {
    id: tile

    required property real windowID
    required property string title
    required property string app
    required property string icon

    required property PreviewSource previews
    required property int iconSize
    property real coming: 1 // 0 to 1, while it appears
    opacity: coming

    implicitWidth: isVertical ? iconSize + 16 : iconSize + 6
    implicitHeight: isVertical ? iconSize + 6 : iconSize + 16
    tipText: title

    Accessible.role: Accessible.Button
    Accessible.name: qsTr("%1, minimized window of %2").arg(title).arg(app)

    WindowPicture {
        id: picture
        anchors.centerIn: parent
        width: tile.iconSize
        height: tile.iconSize
        visible: tile.previews.isAvailable
        source: tile.previews
        windowID: tile.windowID
        room: Qt.size(96, 96)
        radius: 4
        scale: tile.isPressed ? 0.92 : tile.isHovered ? 1.08 : 1
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
        Accessible.ignored: true
    }
    Rectangle {
        x: picture.x + picture.place.x
        y: picture.y + picture.place.y
        width: picture.place.width
        height: picture.place.height
        visible: picture.visible && picture.hasPicture
        radius: 4
        color: "transparent"
        border.width: 1
        border.color: tile.colors.line
        scale: picture.scale
    }
    Image {
        readonly property bool isBadge: picture.visible && picture.hasPicture
        readonly property real corner: tile.iconSize * 0.46
        width: isBadge ? corner : tile.iconSize
        height: width
        x: isBadge ? picture.x + tile.iconSize - width + 2 : picture.x
        y: isBadge ? picture.y + picture.place.y + picture.place.height - height * 0.8 : picture.y
        source: tile.icon
        sourceSize { width: tile.iconSize * 2; height: tile.iconSize * 2 }
        opacity: isBadge ? 1 : 0.7
        scale: picture.scale
        smooth: true
        mipmap: true
        asynchronous: true
        Accessible.ignored: true
    }
}
