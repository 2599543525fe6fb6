import QtQuick

// A number in a range, moved with the pointer or the arrows, and said beside it. The wheel goes to the page: it would
// change what it only passes over.
Item {
    id: slider

    required property Colors colors
    required property string name
    required property real current
    property real from: 0
    property real to: 1
    property real stepSize: 0.01
    property string text: "" // of the value
    property Gradient groove: null // painted along the track, from the least to the most

    // Assistive tools read and set it by this name.
    property real value: 0
    onCurrentChanged: value = current
    onValueChanged: if (value !== current) moved(value)

    signal moved(value: real) // at each step on the way
    signal settled() // the movement is over

    readonly property bool isMirrored: LayoutMirroring.enabled
    readonly property real scaling: Math.min(1.6, Math.max(1, Theme.textScale))
    readonly property real position: to > from ? Math.max(0, Math.min(1, (value - from) / (to - from))) : 0
    property bool isPointed: false // the keyboard came with a press: no ring is needed

    implicitWidth: 190 + (text === "" ? 0 : words.width + 12)
    width: Math.min(implicitWidth, (parent as SettingSlot)?.room ?? implicitWidth)
    implicitHeight: Math.max(Math.round(26 * scaling), words.height)
    opacity: enabled ? 1 : 0.45
    activeFocusOnTab: enabled
    onActiveFocusChanged: if (!activeFocus) isPointed = false

    Accessible.role: Accessible.Slider
    Accessible.name: name
    Accessible.description: text
    Accessible.focusable: enabled
    Accessible.onIncreaseAction: step(1, true)
    Accessible.onDecreaseAction: step(-1, true)

    function put(wanted: real) {
        const steps = Math.round((Math.max(from, Math.min(to, wanted)) - from) / stepSize)
        value = Math.min(to, Number((from + steps * stepSize).toFixed(4)))
    }
    function step(count: int, isOver: bool) {
        isPointed = false
        put(value + count * stepSize)
        if (isOver)
            settled()
    }

    Keys.onPressed: event => {
        const ahead = isMirrored ? Qt.Key_Left : Qt.Key_Right
        const back = isMirrored ? Qt.Key_Right : Qt.Key_Left
        event.accepted = true
        switch (event.key) {
        case ahead: case Qt.Key_Up: step(1, false); break
        case back: case Qt.Key_Down: step(-1, false); break
        case Qt.Key_PageUp: step(10, false); break
        case Qt.Key_PageDown: step(-10, false); break
        case Qt.Key_Home: isPointed = false; put(from); break
        case Qt.Key_End: isPointed = false; put(to); break
        default: event.accepted = false
        }
    }
    Keys.onReleased: event => {
        const ours = [Qt.Key_Left, Qt.Key_Right, Qt.Key_Up, Qt.Key_Down, Qt.Key_PageUp, Qt.Key_PageDown, Qt.Key_Home, Qt.Key_End]
        event.accepted = ours.includes(event.key)
        if (event.accepted && !event.isAutoRepeat)
            settled()
    }

    Item {
        id: track
        anchors { left: parent.left; right: slider.text === "" ? parent.right : words.left; rightMargin: slider.text === "" ? 0 : 12 }
        height: parent.height
        readonly property real room: width - knob.width

        Rectangle {
            id: rail
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: slider.groove ? 10 : 4
            radius: height / 2
            color: slider.colors.faded(slider.colors.text, 0.22)
            border.width: slider.groove || slider.colors.isStrong ? 1 : 0
            border.color: slider.colors.line
            gradient: slider.groove
            rotation: slider.groove && slider.isMirrored ? 180 : 0
        }
        Rectangle {
            anchors { left: rail.left; verticalCenter: parent.verticalCenter }
            visible: !slider.groove
            width: knob.width / 2 + slider.position * track.room
            height: rail.height
            radius: rail.radius
            color: slider.colors.accent
        }
        Rectangle {
            id: knob
            x: (slider.isMirrored ? 1 - slider.position : slider.position) * track.room
            anchors.verticalCenter: parent.verticalCenter
            width: Math.round(20 * slider.scaling)
            height: width
            radius: width / 2
            color: pointer.pressed ? "#f0f0f2" : "white"
            border.width: 1
            border.color: slider.colors.isStrong ? "#000000" : "#4d000000"
        }
        FocusRing { target: knob; targetRadius: knob.radius; gap: 2; visible: slider.activeFocus && !slider.isPointed }

        MouseArea {
            id: pointer
            property real grip: 0 // from the knob's middle to where it was taken
            anchors.fill: parent
            preventStealing: true // the page would scroll
            hoverEnabled: true
            cursorShape: Qt.PointingHandCursor
            onPressed: mouse => {
                slider.isPointed = true
                slider.forceActiveFocus(Qt.MouseFocusReason)
                const middle = knob.x + knob.width / 2
                grip = Math.abs(mouse.x - middle) <= knob.width / 2 ? mouse.x - middle : 0
                follow(mouse.x)
            }
            onPositionChanged: mouse => { if (pressed) follow(mouse.x) }
            onReleased: slider.settled()
            onCanceled: slider.settled()
            function follow(x: real) {
                const share = (x - grip - knob.width / 2) / Math.max(1, track.room)
                slider.put(slider.from + (slider.isMirrored ? 1 - share : share) * (slider.to - slider.from))
            }
        }
    }
    FontMetrics {
        id: metrics
        font.pixelSize: Theme.text
    }
    Label {
        id: words
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        // Wide enough for every value, so that the track stays.
        width: slider.text === "" ? 0 : Math.ceil(Math.max(metrics.advanceWidth("100 %"), implicitWidth))
        colors: slider.colors
        color: slider.colors.secondaryText
        text: slider.text
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }
}
