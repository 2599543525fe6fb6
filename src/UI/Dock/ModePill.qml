import QtQuick
import Fendrel.Style

// One mode: the current one filled, a pending one with its countdown, the others as their symbol.
DockItem {
    id: pill

    required property string modeID
    required property string name
    required property string symbol
    required property color tint
    required property bool isCurrent
    required property bool isPending

    property int pendingSeconds: 0

    readonly property bool isWide: !isVertical && (isCurrent || isPending)
    readonly property color foreground: isCurrent ? colors.onTint(tint) : colors.tintText(tint)

    implicitWidth: isWide ? content.implicitWidth + 24 : pillSize
    implicitHeight: pillSize
    readonly property int pillSize: 36

    Behavior on implicitWidth { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }

    tipText: isPending ? qsTr("Switching to %1 in %2 s. Each extra press cuts the wait").arg(name).arg(pendingSeconds) : name
    isTipForced: isPending

    Accessible.role: Accessible.RadioButton
    Accessible.name: isPending ? qsTr("%1, switching in %2 seconds").arg(name).arg(pendingSeconds) : name
    Accessible.description: isPending ? qsTr("Each extra press cuts the wait") : ""
    Accessible.checkable: true
    Accessible.checked: isCurrent

    Rectangle {
        anchors.fill: parent
        radius: 12
        color: pill.isCurrent ? pill.tint
             : pill.isPending ? pill.colors.faded(pill.tint, 0.2)
             : pill.isPressed ? pill.colors.pressed
             : pill.isHovered ? pill.colors.hover : pill.colors.faded(pill.tint, 0)
        border.width: pill.isPending ? 1.5 : 0
        border.color: pill.tint
        scale: pill.isPressed ? 0.95 : 1

        Behavior on color { ColorAnimation { duration: Theme.normal } }
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
    }

    Row {
        id: content
        anchors.centerIn: parent
        spacing: 7

        Symbol {
            name: pill.symbol
            size: 19
            color: pill.foreground
            visible: !(pill.isPending && pill.isVertical)
            anchors.verticalCenter: parent.verticalCenter
        }
        Label {
            colors: pill.colors
            color: pill.foreground
            visible: pill.isWide
            text: pill.name
            font.weight: Font.DemiBold
            anchors.verticalCenter: parent.verticalCenter
        }
        Label {
            colors: pill.colors
            color: pill.foreground
            visible: pill.isPending
            text: pill.isVertical ? pill.pendingSeconds : qsTr("%1 s").arg(pill.pendingSeconds)
            font.weight: pill.isVertical ? Font.DemiBold : Font.Normal
            anchors.verticalCenter: parent.verticalCenter
        }
    }
}
