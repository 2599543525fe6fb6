import QtQuick
import Fendrel.Style

// The label beside the bar that says what the item under the pointer is. One for the whole dock: it glides from item to
// item. What forces its label (a switch that is pending) shows while nothing else is asked for.
Item {
    id: tip

    required property int edge
    required property Item bar
    property bool isSuppressed: false
    property real scrolled: 0 // changes when items move without changing their own place

    // What asks for its label: { item, text, isForced }, the newest last.
    property var asking: []

    function update(item: Item, text: string, isWanted: bool, isForced: bool) {
        const others = asking.filter(other => other.item !== item)
        asking = isWanted || isForced ? [...others, { item: item, text: text, isForced: !isWanted }] : others
    }

    readonly property var current: asking.filter(other => !other.isForced)[0] ?? asking[0] ?? null
    readonly property bool isWanted: current !== null && !isSuppressed

    // Of the label, when it has stopped moving; empty while there is none.
    readonly property rect area: isWanted ? Qt.rect(bubble.restingX, bubble.restingY, bubble.width, bubble.height) : Qt.rect(0, 0, 0, 0)

    // Where it points: kept when it goes, so that it fades where it was.
    property point spot: Qt.point(0, 0)
    property string spotText: ""
    function place() {
        if (!current)
            return
        const item = current.item as DockItem
        const isVertical = edge !== Qt.BottomEdge
        const center = item.mapToItem(tip, (item.width + (isVertical ? 0 : item.leading)) / 2 + (isVertical ? 0 : item.aside),
                                      (item.height + (isVertical ? item.leading : 0)) / 2 + (isVertical ? item.aside : 0))
        const away = 10 + item.rise
        spot = edge === Qt.BottomEdge ? Qt.point(center.x, bar.y - away)
             : edge === Qt.LeftEdge ? Qt.point(bar.x + bar.width + away, center.y)
             : Qt.point(bar.x - away, center.y)
        spotText = current.text
    }
    onCurrentChanged: {
        const before = Qt.point(bubble.restingX, bubble.restingY)
        place()
        if (bubble.opacity > 0.5)
            glide.begin(before)
    }
    onScrolledChanged: place()
    Connections {
        target: (tip.current?.item ?? null) as DockItem
        function onAsideChanged() { tip.place() }
        function onRiseChanged() { tip.place() }
        function onXChanged() { tip.place() }
        function onWidthChanged() { tip.place() }
    }
    Connections {
        target: tip.bar
        function onXChanged() { tip.place() }
        function onYChanged() { tip.place() }
    }

    Rectangle {
        id: bubble

        readonly property real wantedX: tip.edge === Qt.BottomEdge ? tip.spot.x - width / 2
                                      : tip.edge === Qt.LeftEdge ? tip.spot.x : tip.spot.x - width
        readonly property real wantedY: tip.edge === Qt.BottomEdge ? tip.spot.y - height : tip.spot.y - height / 2

        readonly property real restingX: Math.max(8, Math.min(tip.width - width - 8, wantedX))
        readonly property real restingY: Math.max(2, Math.min(tip.height - height - 2, wantedY))

        x: restingX + glide.offset.x
        y: restingY + glide.offset.y
        width: Math.min(label.implicitWidth + 24, 520)
        height: 30
        radius: 9
        color: "#f0202127"
        border.width: 1
        border.color: "#26ffffff"
        opacity: tip.isWanted ? 1 : 0
        visible: opacity > 0

        Behavior on opacity { NumberAnimation { duration: Theme.quick } }

        // From the item before. It follows the item itself at once, or each motion of the pointer would start it anew.
        PropertyAnimation {
            id: glide
            property point offset
            target: glide
            property: "offset"
            to: Qt.point(0, 0)
            duration: Theme.quick
            easing.type: Easing.OutCubic
            function begin(before: point) {
                offset = Qt.point(offset.x + before.x - bubble.restingX, offset.y + before.y - bubble.restingY)
                restart()
            }
        }

        Text {
            id: label
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 24)
            text: tip.spotText
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: "#f6f7f9"
            font.pixelSize: 12
            font.weight: Font.Medium
            Accessible.ignored: true
        }
    }
}
