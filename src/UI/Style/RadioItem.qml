import QtQuick

// One of the things in a RadioRow.
Item {
    id: item

    required property int index
    required property RadioRow row
    required property string label
    required property bool isChosen
    readonly property bool isHovered: hover.hovered
    property bool isPointed: false // the keyboard came with a click: no ring is needed

    signal chosen()

    activeFocusOnTab: isChosen
    onActiveFocusChanged: if (!activeFocus) isPointed = false
    Accessible.role: Accessible.RadioButton
    Accessible.name: label
    Accessible.checkable: true
    Accessible.checked: isChosen
    Accessible.focusable: true
    Accessible.onPressAction: chosen()

    Keys.onPressed: isPointed = false
    Keys.onLeftPressed: row.step(index, LayoutMirroring.enabled ? 1 : -1)
    Keys.onUpPressed: row.step(index, -1)
    Keys.onRightPressed: row.step(index, LayoutMirroring.enabled ? -1 : 1)
    Keys.onDownPressed: row.step(index, 1)

    HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
    TapHandler {
        onTapped: {
            item.isPointed = true
            item.forceActiveFocus(Qt.MouseFocusReason) // a field that is left takes over what was typed in it
            item.chosen()
        }
    }
}
