import QtQuick
import Fendrel.Style

// What every item of the dock has in common: it can be pressed with pointer and keyboard, asked for its menu, and says
// what it is in a label beside the bar. One that only shows something lies in no one's way.
Item {
    id: item

    required property Colors colors
    required property DockTip tip
    required property bool isVertical

    readonly property real length: isVertical ? implicitHeight : implicitWidth // along the bar
    property string tipText: ""
    property bool isTipForced: false // shown without the pointer too
    property bool isButton: true
    property real leading: 0 // room before it, that does not look like a part of it
    // Where it is drawn may differ from its place, which is what counts for the pointer.
    property real aside: 0 // of its middle, along the bar
    property real rise: 0  // pixels by which it stands out of the bar
    readonly property bool isHovered: hover.hovered
    readonly property bool isPressed: tap.pressed

    // What is dragged over it: { app, files }, an application's identifier or the addresses of files.
    property bool isTarget: false // it is, and would be taken
    property string targetText: "" // what would be done with it
    function takes(load: var): bool { return false }
    signal received(load: var)

    signal pressed()
    signal menuAsked()

    activeFocusOnTab: isButton
    Accessible.focusable: isButton
    Accessible.onPressAction: pressed()

    readonly property bool wantsTip: isHovered || activeFocus || isTarget
    readonly property string shownTip: isTarget ? targetText : tipText
    function updateTip() { tip.update(item, shownTip, wantsTip, isTipForced) }
    onShownTipChanged: if (wantsTip || isTipForced) updateTip()
    onWantsTipChanged: updateTip()
    onIsTipForcedChanged: updateTip()
    Component.onDestruction: tip.update(item, "", false, false)

    Keys.onSpacePressed: event => press(event)
    Keys.onReturnPressed: event => press(event)
    Keys.onEnterPressed: event => press(event)
    function press(event: var) {
        event.accepted = !(event.modifiers & Qt.ControlModifier) // that is for the dock as a whole
        if (event.accepted && !event.isAutoRepeat)
            pressed()
    }
    Keys.onMenuPressed: menuAsked()
    Keys.onPressed: event => { if (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier) menuAsked() }

    // Between it and the screen's edge nothing else is to be pressed.
    property real reach: 0 // pixels beyond it towards the middle of the screen that are its own, too
    containmentMask: Item {
        readonly property real gap: 64 // at least as far as the edge
        x: !item.isVertical ? 0 : item.tip.edge === Qt.LeftEdge ? -gap : -item.reach
        y: item.isVertical ? 0 : -item.reach
        width: item.width + (item.isVertical ? gap + item.reach : 0)
        height: item.height + (item.isVertical ? 0 : gap + item.reach)
    }

    FocusRing {
        target: item
        targetRadius: 12
        gap: 0
        anchors.leftMargin: item.isVertical ? 0 : item.leading
        anchors.topMargin: item.isVertical ? item.leading : 0
        ringColor: item.colors.text
    }

    HoverHandler { id: hover }
    TapHandler {
        id: tap
        enabled: item.isButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: item.pressed()
    }
    TapHandler {
        enabled: item.isButton
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: item.menuAsked()
        onLongPressed: item.menuAsked()
    }
}
