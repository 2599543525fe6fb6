import QtQuick
import Fendrel.Style

// One application: its icon, a mark at the screen's edge while it runs, a brighter place while it is in front.
DockItem {
    id: button

    required property string bundleID
    required property string name
    required property string icon
    required property bool isRunning
    required property bool isFront
    required property bool isInMode

    required property int edge
    required property int iconSize
    required property real hoverScale
    required property color markColor

    property int pictureSize: iconSize // that the picture is loaded in
    property real coming: 1 // 0 to 1, while it appears
    property real share: 1 // 0 to 1, of it that is in sight
    opacity: coming * share

    property bool isOpening: false

    implicitWidth: isVertical ? iconSize + 16 : leading + iconSize + 6
    implicitHeight: isVertical ? leading + iconSize + 6 : iconSize + 16
    tipText: name

    Accessible.role: Accessible.Button
    Accessible.name: isFront ? qsTr("%1, in front").arg(name) : isRunning ? qsTr("%1, running").arg(name) : name

    onIsRunningChanged: isOpening = false
    onPressed: {
        if (!isRunning) {
            isOpening = true
            bounce.restart()
        }
    }

    // The side of the icon that is towards the screen's edge stays where it is while it grows.
    readonly property int origin: edge === Qt.BottomEdge ? Item.Bottom : edge === Qt.LeftEdge ? Item.Left : Item.Right

    Separator {
        colors: button.colors
        isVertical: button.isVertical
        visible: button.leading > 0
        x: button.isVertical ? (button.width - width) / 2 : 0
        y: button.isVertical ? 0 : (button.height - height) / 2
    }

    Rectangle {
        anchors.centerIn: picture
        width: button.iconSize + 8
        height: width
        radius: Math.min(13, button.iconSize * 0.3)
        color: button.isFront ? button.colors.pressed : button.colors.hover
        opacity: button.isFront ? 1 : button.isHovered ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }

    Image {
        id: picture
        x: button.isVertical ? (button.edge === Qt.LeftEdge ? 9 : 7) : button.leading + 3
        y: button.isVertical ? button.leading + 3 : 7
        width: button.iconSize
        height: button.iconSize
        sourceSize { width: Math.round(button.pictureSize * 1.5); height: Math.round(button.pictureSize * 1.5) }
        source: button.icon
        asynchronous: true
        smooth: true
        mipmap: true
        opacity: status === Image.Ready ? 1 : 0
        transformOrigin: button.origin
        scale: button.isPressed ? 0.92 : button.isHovered ? button.hoverScale : 1
        Accessible.ignored: true

        Behavior on scale { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutBack; easing.overshoot: 1.1 } }
        Behavior on opacity { NumberAnimation { duration: Theme.normal } }

        transform: Translate {
            id: hop
            property real height: 0
            x: button.edge === Qt.LeftEdge ? height : button.edge === Qt.RightEdge ? -height : 0
            y: button.edge === Qt.BottomEdge ? -height : 0
        }
    }

    SequentialAnimation {
        id: bounce
        loops: 4
        NumberAnimation { target: hop; property: "height"; to: Theme.reducesMotion ? 0 : 12; duration: 240; easing.type: Easing.OutQuad }
        NumberAnimation { target: hop; property: "height"; to: 0; duration: 240; easing.type: Easing.InQuad }
        ScriptAction { script: if (!button.isOpening) bounce.complete() }
        onStopped: { hop.height = 0; button.isOpening = false }
    }

    Rectangle {
        id: mark
        readonly property real length: button.isFront ? 14 : 4
        width: button.isVertical ? 4 : length
        height: button.isVertical ? length : 4
        radius: 2
        color: button.isFront ? button.markColor : button.colors.secondaryText
        opacity: button.isRunning ? 1 : 0
        x: button.isVertical ? (button.edge === Qt.LeftEdge ? 1 : button.width - 5) : picture.x + (picture.width - width) / 2
        y: button.isVertical ? picture.y + (picture.height - height) / 2 : button.height - 5
        Behavior on width { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
        Behavior on height { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
        Behavior on opacity { NumberAnimation { duration: Theme.normal } }
        Behavior on color { ColorAnimation { duration: Theme.normal } }
    }
}
