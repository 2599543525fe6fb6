import QtQuick
import Fendrel.Style

// One application: its icon, marks at the screen's edge while it runs, a brighter place while it is in front, and what
// it has to say: a count, a progress, that it asks for the user.
DockItem {
    id: button

    required property string bundleID
    required property string name
    required property string icon
    required property bool isRunning
    required property bool isFront
    required property bool isInMode
    required property bool isCarried
    required property bool isUrgent
    required property bool isHidden
    required property int windowCount
    required property int badgeCount
    required property string badgeText
    required property real progress

    required property int edge
    required property int iconSize
    required property Wave wave
    required property color markColor
    property color background: colors.card // of the bar
    property real spacing: 0 // to the button before it
    property real fullSize: iconSize // of the largest picture that is ever shown
    property bool cyclesWithWheel: true // else only with Ctrl, because the row itself scrolls

    property real coming // 0 to 1, while it appears; its own, for what moves the row may be cut short
    NumberAnimation on coming { from: 0; to: 1; duration: Theme.normal; easing.type: Easing.OutCubic }
    property real share: 1 // 0 to 1, of it that is in sight
    opacity: coming * share
    scale: coming

    property bool isOpening: false
    property string hotKey: ""

    signal windowAsked() // one more of its windows
    signal turned(step: int)
    signal moveAsked(forward: bool)

    implicitWidth: isVertical ? iconSize + 16 : leading + iconSize + 6
    implicitHeight: isVertical ? leading + iconSize + 6 : iconSize + 16
    tipText: hotKey === "" ? name : name + " · " + hotKey
    targetText: qsTr("Open with %1").arg(name)
    function takes(load: var): bool { return load.app === "" && load.files.length > 0 }

    Accessible.role: Accessible.Button
    Accessible.name: {
        const said = [name]
        if (isFront)
            said.push(qsTr("in front"))
        else if (isHidden)
            said.push(qsTr("hidden"))
        else if (isRunning)
            said.push(qsTr("running"))
        if (windowCount > 1)
            said.push(qsTr("%1 windows").arg(windowCount))
        if (badgeCount > 0)
            said.push(qsTr("%1 unread").arg(badgeText))
        if (progress >= 0)
            said.push(qsTr("%1 % done").arg(Math.round(100 * progress)))
        if (isUrgent)
            said.push(qsTr("asks for you"))
        return said.join(", ")
    }

    // The icon as it is drawn. While the wave is up it stands elsewhere and is larger, but the button keeps its place.
    readonly property real restingStart: (isVertical ? y : x) + leading + 3
    readonly property real drawnStart: wave.place(restingStart)
    readonly property real drawnSize: wave.place(restingStart + iconSize) - drawnStart
    readonly property bool isSwollen: drawnSize - iconSize > 0.05
    aside: drawnStart - restingStart + (drawnSize - iconSize) / 2
    rise: Math.max(0, drawnSize - iconSize - 7)

    reach: wave.isUp ? fullSize - iconSize : 0 // the pointer finds the part beyond the bar, too

    onIsRunningChanged: isOpening = false
    onPressed: if (!isRunning) open()
    onWindowAsked: if (!isRunning) open()
    function open() {
        isOpening = true
        hop.run(12)
    }
    onIsUrgentChanged: if (isUrgent) hop.run(3)

    Keys.onPressed: event => {
        const forward = event.key === (isVertical ? Qt.Key_Down : Qt.Key_Right)
        const backward = event.key === (isVertical ? Qt.Key_Up : Qt.Key_Left)
        event.accepted = isInMode && (event.modifiers & Qt.AltModifier) && (forward || backward)
        if (event.accepted)
            moveAsked(forward)
    }

    // Everything that is only looked at is disabled, and made where it shows: the pointer's every movement is offered to
    // all items that could take it.
    Loader {
        enabled: false
        active: button.leading > 0
        sourceComponent: Separator {
            // In the middle between the icons.
            readonly property real resting: (button.leading - button.spacing) / 2
            readonly property real start: button.isVertical ? button.y : button.x
            readonly property real along: Math.round(button.wave.place(start + resting) - start - length / 2)
            colors: button.colors
            isVertical: button.isVertical
            x: isVertical ? (button.width - width) / 2 : along
            y: isVertical ? along : (button.height - height) / 2
        }
    }

    Rectangle {
        enabled: false
        readonly property real along: picture.length + 8
        readonly property real across: button.iconSize + 8
        visible: !button.isCarried && (button.isFront || button.isTarget || button.isOpening || (button.isHovered && !button.wave.isUp))
        x: button.isVertical ? (button.width - width) / 2 : picture.x - 4
        y: button.isVertical ? picture.y - 4 : (button.height - height) / 2
        width: button.isVertical ? across : along
        height: button.isVertical ? along : across
        radius: Math.min(13, button.iconSize * 0.3)
        color: button.isTarget ? button.colors.faded(button.markColor, 0.3) : button.isFront ? button.colors.pressed : button.colors.hover
        border.width: button.isTarget ? 2 : Theme.increasesContrast ? 1 : 0
        border.color: button.isTarget ? button.markColor : button.colors.text
    }

    Item {
        id: picture
        enabled: false

        readonly property real length: button.isSwollen ? button.drawnSize : button.iconSize
        // What only gives way stands on whole pixels, and is as sharp as ever.
        readonly property real along: button.leading + 3
            + (button.isSwollen ? button.drawnStart - button.restingStart : Math.round(button.drawnStart - button.restingStart))
        // The side towards the screen's edge stays where it is.
        x: !button.isVertical ? along : button.edge === Qt.LeftEdge ? 9 : 7 + button.iconSize - length
        y: button.isVertical ? along : 7 + button.iconSize - length
        width: length
        height: length
        visible: !button.isCarried
        transformOrigin: button.edge === Qt.BottomEdge ? Item.Bottom : button.edge === Qt.LeftEdge ? Item.Left : Item.Right
        scale: button.isPressed ? 0.92 : 1
        Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }

        transform: Translate {
            x: button.edge === Qt.LeftEdge ? hop.height : button.edge === Qt.RightEdge ? -hop.height : 0
            y: button.edge === Qt.BottomEdge ? -hop.height : 0
        }

        // Drawn at exactly its size at rest, and from a larger picture while it swells.
        AppPicture {
            source: button.icon
            size: button.iconSize
            opacity: button.isHidden ? 0.5 : 1
            visible: !large.isShown
        }
        AppPicture {
            id: large
            readonly property bool isShown: button.isSwollen && status === Image.Ready
            property bool isNeeded: false
            source: isNeeded ? button.icon : ""
            size: button.fullSize
            opacity: button.isHidden ? 0.5 : 1
            visible: isShown
            Connections {
                target: button.wave
                enabled: !large.isNeeded
                function onIsUpChanged() { large.isNeeded = true }
            }
        }

        Loader {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Math.round(button.iconSize * 0.08) }
            active: button.progress >= 0
            sourceComponent: AppProgress {
                tint: button.markColor
                progress: button.progress
            }
        }
        Loader {
            anchors { right: parent.right; top: parent.top; rightMargin: -5; topMargin: -5 }
            property bool wasNeeded: false // it goes smoothly
            readonly property bool isNeeded: button.badgeCount > 0 || button.isUrgent
            onIsNeededChanged: wasNeeded = true
            active: isNeeded || wasNeeded
            sourceComponent: HeldBadge {
                colors: button.colors
                tint: "#d6303b"
                ring: button.background
                count: button.badgeCount
                note: button.isUrgent ? "!" : ""
            }
        }
    }

    AppMarks {
        enabled: false
        colors: button.colors
        isVertical: button.isVertical
        isFront: button.isFront
        isUrgent: button.isUrgent
        frontColor: button.markColor
        count: !button.isRunning || button.isCarried ? 0 : Math.max(1, Math.min(3, button.windowCount))
        x: button.isVertical ? (button.edge === Qt.LeftEdge ? 1 : button.width - 5) : picture.x + (picture.width - width) / 2
        y: button.isVertical ? picture.y + (picture.height - height) / 2 : button.height - 5
    }

    SequentialAnimation {
        id: hop
        property real height: 0
        function run(times: int) {
            if (Theme.reducesMotion || running)
                return
            loops = times
            restart()
        }
        NumberAnimation { target: hop; property: "height"; to: Math.min(16, button.iconSize * 0.3); duration: 240; easing.type: Easing.OutQuad }
        NumberAnimation { target: hop; property: "height"; to: 0; duration: 240; easing.type: Easing.InQuad }
        ScriptAction { script: if (!button.isOpening && !button.isUrgent) hop.complete() }
        onStopped: { hop.height = 0; button.isOpening = false }
    }

    TapHandler {
        acceptedButtons: Qt.MiddleButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: button.windowAsked()
    }
    // A step a notch, through the windows of an application that has several. A row that scrolls keeps the wheel for
    // itself, or there would be icons that nobody gets to.
    WheelHandler {
        property real turn: 0
        enabled: button.windowCount > 1
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        acceptedModifiers: button.cyclesWithWheel ? Qt.KeyboardModifierMask : Qt.ControlModifier
        onWheel: event => {
            turn += event.angleDelta.y
            for (; Math.abs(turn) >= 120; turn -= Math.sign(turn) * 120)
                button.turned(turn < 0 ? 1 : -1)
        }
    }
}
