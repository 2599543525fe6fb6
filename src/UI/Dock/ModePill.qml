import QtQuick
import Fendrel.Style

// One mode: the current one filled, a pending one with its countdown, the others as their symbol. Where there is little
// room none has its name.
DockItem {
    id: pill

    required property string modeID
    required property string name
    required property string symbol
    required property color tint
    required property bool isCurrent
    required property bool isPending
    required property int heldCount

    property color background: colors.card // of the bar
    property int pendingSeconds: 0
    required property string hotKey

    signal appDropped(bundleID: string)

    property int size: 36
    property bool isCompact: false

    readonly property bool isBare: isVertical || isCompact
    readonly property bool isWide: !isBare && (isCurrent || isPending)
    readonly property real nameLength: isVertical ? 0 : label.wantedWidth + 14 // by which it makes a pill longer
    readonly property color foreground: isCurrent ? colors.onTint(tint) : colors.tintText(tint)

    implicitWidth: isWide ? content.implicitWidth + 24 : size
    implicitHeight: size
    width: implicitWidth
    Behavior on width { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }

    tipText: isPending ? qsTr("Switching to %1 in %2 s. Each extra press cuts the wait").arg(shortName.elidedText).arg(pendingSeconds)
           : heldText === "" && hotKey === "" ? name
           : shortName.elidedText + (heldText === "" ? "" : " · " + heldText) + (hotKey === "" ? "" : " · " + hotKey)
    readonly property string heldText: heldCount === 0 ? "" : qsTr("%n held message(s)", "", heldCount)
    targetText: qsTr("Add to %1").arg(name)
    function takes(load: var): bool { return load.app !== "" }
    onReceived: load => appDropped(load.app)
    z: heldCount > 0 ? 1 : 0 // the badge lies over the neighbour

    // The hint comes after the name, and is not to be pushed out of the label by it.
    TextMetrics {
        id: shortName
        font: label.font
        elide: Text.ElideRight
        elideWidth: 160
        text: pill.name
    }

    Accessible.role: Accessible.RadioButton
    Accessible.name: (isPending ? qsTr("%1, switching in %2 seconds").arg(name).arg(pendingSeconds) : name) + (heldText === "" ? "" : ", " + heldText)
    Accessible.description: isPending ? qsTr("Each extra press cuts the wait") : ""
    Accessible.checkable: true
    Accessible.checked: isCurrent

    Rectangle {
        anchors.fill: parent
        radius: pill.size / 3
        color: pill.isCurrent ? pill.tint
             : pill.isPending || pill.isTarget ? pill.colors.faded(pill.tint, 0.2)
             : pill.isPressed ? pill.colors.pressed
             : pill.isHovered ? pill.colors.hover : pill.colors.faded(pill.tint, 0)
        border.width: pill.isTarget ? 2 : pill.isPending ? 1.5 : Theme.increasesContrast && (pill.isCurrent || pill.isHovered) ? 2 : 0
        border.color: Theme.increasesContrast || (pill.isTarget && pill.isCurrent) ? pill.colors.text : pill.tint
        scale: pill.isPressed ? 0.95 : pill.isTarget ? 1.06 : 1

        Behavior on color { ColorAnimation { duration: Theme.normal } }
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
    }

    Row {
        id: content
        anchors.centerIn: parent
        spacing: 7

        Symbol {
            name: pill.symbol
            size: Math.round(pill.size * (pill.isCompact ? 19 / 30 : 19 / 36))
            color: pill.foreground
            visible: !(pill.isPending && pill.isBare)
            anchors.verticalCenter: parent.verticalCenter
        }
        Label {
            id: label
            readonly property real wantedWidth: Math.min(Math.ceil(implicitWidth), 160)
            width: wantedWidth
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
            text: pill.isBare ? pill.pendingSeconds : qsTr("%1 s").arg(pill.pendingSeconds)
            font.weight: pill.isBare ? Font.DemiBold : Font.Normal
            anchors.verticalCenter: parent.verticalCenter
        }
    }

    HeldBadge {
        anchors { right: parent.right; top: parent.top; rightMargin: -3; topMargin: -3 }
        colors: pill.colors
        tint: pill.tint
        ring: pill.background
        count: pill.heldCount
    }
}
