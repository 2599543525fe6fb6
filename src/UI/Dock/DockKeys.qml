import QtQuick
import Fendrel.Types

// What keys do in the dock, apart from those that its items take themselves, and when it gives the keyboard back.
QtObject {
    id: keys

    required property DockPanel panel
    required property DockController dock
    required property DockDrops drops
    required property CardDrag cards
    required property ModeSection modes
    required property AppSection apps

    // Arrows go through the items, Home and End to the first and last, a letter to the next application whose name begins
    // with it; Control with Return or Backspace answers the card beside the bar; Escape gives the keyboard back.
    function press(event: var) {
        event.accepted = true
        const forward = [Qt.Key_Right, Qt.Key_Down].includes(event.key)
        const backward = [Qt.Key_Left, Qt.Key_Up].includes(event.key)
        if (drops.isActive || cards.isActive) {
            // Nothing else goes on while something is carried.
            if (event.key === Qt.Key_Escape) {
                drops.end()
                cards.end()
            }
        } else if (event.matches(StandardKey.Undo)) {
            dock.notices.accept("undo")
        } else if ([Qt.Key_Return, Qt.Key_Enter].includes(event.key) && (event.modifiers & ~Qt.KeypadModifier) === Qt.ControlModifier) {
            dock.notices.accept(dock.notices.current.kind)
        } else if (event.key === Qt.Key_Backspace && event.modifiers === Qt.ControlModifier) {
            dock.notices.refuse(dock.notices.current.kind)
        } else if (forward || backward) {
            const item = apps.Window.activeFocusItem?.nextItemInFocusChain(forward)
            item?.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
        } else if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            const first = modes.first()
            const item = event.key === Qt.Key_Home ? first : first?.nextItemInFocusChain(false)
            item?.forceActiveFocus(Qt.TabFocusReason)
        } else if (event.key === Qt.Key_Escape) {
            panel.releaseKeyboard()
        } else if (event.text > " " && !(event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier))) {
            apps.seek(event.text)
        } else {
            event.accepted = false
        }
    }

    readonly property Connections arrival: Connections {
        target: keys.panel
        function onKeyboardTaken() {
            keys.modes.first()?.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    // A switch that takes its time can still be hurried with the keyboard; when it is done, the keyboard goes back.
    readonly property string modeID: dock.modeID
    onModeIDChanged: panel.releaseKeyboard()
    readonly property bool isGateOpen: dock.isGateOpen
    onIsGateOpenChanged: if (isGateOpen) panel.releaseKeyboard()
}
