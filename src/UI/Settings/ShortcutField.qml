import QtQuick
import Fendrel.Style
import Fendrel.Types

// Shows a key combination and records another one: a click or Return begins, the next combination is taken, Escape leaves
// it as it was, Backspace takes it away.
FocusScope {
    id: field

    required property Colors colors
    required property string name
    required property string setting
    required property KeyboardController keyboard

    readonly property var current: keyboard.states[setting]
    property bool isRecording: false
    property var heldCaps: []
    property string remark: "" // what was wrong with what was pressed
    readonly property string words: isRecording ? remark === "" ? qsTr("Press the keys…") : remark
                                                : current.words === "" ? qsTr("None") : current.words

    function begin() {
        forceActiveFocus(Qt.TabFocusReason)
        heldCaps = []
        remark = ""
        isRecording = true
        keyboard.startRecording()
    }
    function end() {
        if (!isRecording)
            return
        isRecording = false
        keyboard.stopRecording()
    }
    function take(event: var) {
        event.accepted = true
        remark = ""
        heldCaps = keyboard.heldCaps(event.modifiers | modifierOf(event.key))
        const isBare = (event.modifiers & ~Qt.KeypadModifier) === 0
        if (event.key === Qt.Key_Escape && isBare) {
            end()
        } else if ((event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete) && isBare) {
            keyboard.clear(setting)
            end()
        } else if (modifierOf(event.key) === 0) {
            if (keyboard.record(setting, event.modifiers, event.nativeScanCode))
                end()
            else
                remark = qsTr("Hold Control, Alt or Super with it")
        }
    }
    // Events tell of the modifiers from before.
    function modifierOf(key: int): int {
        return { [Qt.Key_Control]: Qt.ControlModifier, [Qt.Key_Alt]: Qt.AltModifier, [Qt.Key_Shift]: Qt.ShiftModifier,
                 [Qt.Key_Meta]: Qt.MetaModifier, [Qt.Key_Super_L]: Qt.MetaModifier, [Qt.Key_Super_R]: Qt.MetaModifier }[key] ?? 0
    }

    implicitWidth: Math.max(170 * Theme.textScale, content.implicitWidth + 24 + (clearButton.visible ? clearButton.width + 6 : 0))
    implicitHeight: Theme.controlHeight(hint.implicitHeight)
    activeFocusOnTab: true
    onActiveFocusChanged: if (!activeFocus) end()
    Component.onDestruction: end()

    Accessible.role: Accessible.Button
    Accessible.name: name + ": " + words
    Accessible.description: isRecording ? qsTr("Escape leaves it as it was, Backspace turns it off.") : qsTr("Press to choose other keys.")
    Accessible.focusable: true
    Accessible.onPressAction: begin()

    Keys.onShortcutOverride: event => event.accepted = isRecording
    Keys.onPressed: event => {
        if (isRecording) {
            take(event)
        } else if ([Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key)) {
            event.accepted = true
            begin()
        } else if ([Qt.Key_Backspace, Qt.Key_Delete].includes(event.key)) {
            event.accepted = true
            keyboard.clear(setting)
        }
    }
    Keys.onReleased: event => {
        event.accepted = isRecording
        if (!isRecording)
            return
        heldCaps = keyboard.heldCaps(event.modifiers & ~modifierOf(event.key))
        // A combination that another program holds goes to that one alone: we see no more than its modifiers.
        if (heldCaps.length === 0 && modifierOf(event.key) !== 0 && remark === "")
            remark = qsTr("Another program may have these keys")
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: field.isRecording ? field.colors.faded(field.colors.accent, 0.1) : hover.hovered ? field.colors.hover : field.colors.field
        border.width: field.isRecording ? 2 : 1
        border.color: field.isRecording ? field.colors.accent : field.colors.line
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
    Item {
        anchors { left: parent.left; leftMargin: 12; verticalCenter: parent.verticalCenter }
        width: content.width
        height: content.height
        Row {
            id: content
            readonly property var caps: field.isRecording ? field.heldCaps : field.current.caps
            spacing: 4
            LayoutMirroring.enabled: false // keys are pressed in this order everywhere
            Repeater {
                model: content.caps
                Rectangle {
                    id: cap
                    required property string modelData
                    width: Math.max(height, Math.ceil(label.implicitWidth) + 12)
                    height: Math.ceil(label.implicitHeight) + 6
                    radius: Theme.radiusSmall
                    color: field.colors.card
                    border.width: 1
                    border.color: field.colors.line
                    Label {
                        id: label
                        anchors.centerIn: parent
                        colors: field.colors
                        text: cap.modelData
                        font.weight: Font.Medium
                        Accessible.ignored: true
                    }
                }
            }
            Label {
                id: hint
                anchors.verticalCenter: parent.verticalCenter
                visible: content.caps.length === 0
                colors: field.colors
                color: field.isRecording && field.remark !== "" ? field.colors.warning : field.colors.secondaryText
                text: field.words
                Accessible.ignored: true
            }
        }
    }
    HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
    TapHandler { onTapped: field.isRecording ? field.end() : field.begin() }

    Item {
        id: clearButton
        anchors { right: parent.right; rightMargin: 5; verticalCenter: parent.verticalCenter }
        width: Math.round(26 * Math.max(1, Theme.textScale))
        height: width
        visible: !field.isRecording && field.current.caps.length > 0
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Turn off: %1").arg(field.name)
        Accessible.onPressAction: field.keyboard.clear(field.setting)
        Rectangle {
            anchors.fill: parent
            radius: width / 2
            color: clearHover.hovered ? field.colors.pressed : "transparent"
        }
        Symbol { anchors.centerIn: parent; name: "xmark"; size: Math.round(14 * Theme.textScale); color: field.colors.secondaryText }
        HoverHandler { id: clearHover }
        TapHandler {
            gesturePolicy: TapHandler.WithinBounds
            onTapped: field.keyboard.clear(field.setting)
        }
    }
    FocusRing { target: field; targetRadius: Theme.radius; visible: field.activeFocus && !field.isRecording }
}
