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
    readonly property bool isHovered: hover.hovered
    readonly property bool isPressed: tap.pressed

    signal pressed()
    signal menuAsked()

    activeFocusOnTab: isButton
    Accessible.focusable: isButton
    Accessible.onPressAction: pressed()

    readonly property bool wantsTip: isHovered || activeFocus
    function updateTip() { tip.update(item, tipText, wantsTip, isTipForced) }
    onTipTextChanged: if (wantsTip || isTipForced) updateTip()
    onWantsTipChanged: updateTip()
    onIsTipForcedChanged: updateTip()
    Component.onDestruction: tip.update(item, "", false, false)

    Keys.onSpacePressed: event => { if (!event.isAutoRepeat) pressed() }
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) pressed() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) pressed() }
    Keys.onMenuPressed: menuAsked()

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
