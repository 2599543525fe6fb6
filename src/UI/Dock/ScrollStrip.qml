import QtQuick
import Fendrel.Style

// A row of items, or a column, that shows as much of itself as it is given and scrolls the rest: with the wheel, by
// dragging, and by itself to what has the keyboard.
Item {
    id: strip

    required property bool isVertical
    required property real room // pixels along the bar
    property bool isDraggable: true
    property bool isMoving: true // a changed length is gone through, not jumped to
    // How far what it shows reaches beyond its place, while the row swells: at most 0, and at least 0.
    property int before: 0
    property int after: 0
    property int overhang: 64 // pixels that items may stand out of the bar

    default property alias content: line.data
    readonly property Item row: line // whose coordinates are those of the items
    property alias spacing: line.spacing
    property alias add: line.add
    property alias move: line.move

    property real fullLength: isVertical ? line.implicitHeight : line.implicitWidth // when all movement is over
    readonly property real length: Math.min(fullLength, room)
    readonly property bool isCut: fullLength > room + 1
    readonly property real position: isVertical ? flickable.contentY : flickable.contentX

    implicitWidth: isVertical ? line.implicitWidth : length
    implicitHeight: isVertical ? length : line.implicitHeight
    width: implicitWidth
    height: implicitHeight
    Behavior on width { enabled: strip.isMoving && !strip.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
    Behavior on height { enabled: strip.isMoving && strip.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }

    // How visible an item is: those at a cut edge fade, as a hint that there are more.
    function visibility(item: Item): real {
        if (!isCut)
            return 1
        const length = isVertical ? item.height : item.width
        const start = (isVertical ? item.y : item.x) - position
        const before = position > 1 ? start : length
        const after = position + room < fullLength - 1 ? room - start - length : length
        return Math.max(0, Math.min(1, (Math.min(before, after) + length) / (1.4 * length)))
    }

    property Item revealed: null
    function reveal(item: Item) {
        revealed = item
        if (!isCut || !item)
            return
        const length = isVertical ? item.height : item.width
        const start = isVertical ? item.y : item.x
        const beyond = 0.6 * length // shows what comes next, too
        glideTo(Math.max(start + length + beyond - room, Math.min(start - beyond, glide.running ? glide.to : position)))
    }
    // Items move to their places, and only then it is known whether they are in sight.
    Connections {
        target: strip.revealed
        function onXChanged() { strip.reveal(strip.revealed) }
        function onYChanged() { strip.reveal(strip.revealed) }
    }
    function show(wanted: real) {
        flickable[strip.isVertical ? "contentY" : "contentX"] = Math.max(0, Math.min(fullLength - room, wanted))
    }
    function scrollTo(wanted: real) {
        revealed = null // who scrolls wants to see something else
        glideTo(wanted)
    }
    function glideTo(wanted: real) {
        glide.to = Math.max(0, Math.min(fullLength - room, wanted))
        glide.restart()
    }
    onFullLengthChanged: reveal(revealed)
    onRoomChanged: reveal(revealed)
    onIsCutChanged: if (!isCut) rewind()
    onIsVerticalChanged: rewind()
    function rewind() {
        glide.stop()
        flickable.contentX = 0
        flickable.contentY = 0
    }

    // Icons grow and hop beyond the bar; only its ends cut them off.
    Item {
        id: opening
        x: strip.isVertical ? -strip.overhang : strip.before
        y: strip.isVertical ? strip.before : -strip.overhang
        width: strip.width + (strip.isVertical ? 2 * strip.overhang : strip.after - strip.before)
        height: strip.height + (strip.isVertical ? strip.after - strip.before : 2 * strip.overhang)
        clip: strip.isCut

        Flickable {
            id: flickable
            x: -opening.x
            y: -opening.y
            width: strip.width
            height: strip.height
            contentWidth: strip.isVertical ? width : strip.fullLength
            contentHeight: strip.isVertical ? strip.fullLength : height
            boundsBehavior: Flickable.StopAtBounds
            interactive: strip.isCut && strip.isDraggable
            onMovementStarted: { glide.stop(); strip.revealed = null }

            Line {
                id: line
                isVertical: strip.isVertical
            }
        }
    }
    // Where a mouse picks items up, fingers still drag the row.
    DragHandler {
        property real from: 0
        target: null
        enabled: strip.isCut && !strip.isDraggable
        acceptedDevices: PointerDevice.TouchScreen
        onActiveChanged: {
            glide.stop()
            strip.revealed = null
            from = strip.position
        }
        onActiveTranslationChanged: if (active) strip.show(from - (strip.isVertical ? activeTranslation.y : activeTranslation.x))
    }

    NumberAnimation {
        id: glide
        target: flickable
        property: strip.isVertical ? "contentY" : "contentX"
        duration: Theme.normal
        easing.type: Easing.OutCubic
    }
    WheelHandler {
        enabled: strip.isCut
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            const turn = Math.abs(event.angleDelta.y) >= Math.abs(event.angleDelta.x) ? event.angleDelta.y : event.angleDelta.x
            strip.scrollTo((glide.running ? glide.to : strip.position) - turn * 0.9)
        }
    }
}
