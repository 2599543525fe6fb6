import QtQuick
import Fendrel.Style

// What every item of the dock has in common: it can be pressed with pointer and keyboard, asked for its menu, and says
// what it is in a label beside the bar.
Item {
    id: item

    required property Colors colors
    required property DockTip tip
    required property bool isVertical

    property string tipText: ""
    property bool isTipForced: false // shown without the pointer too
    readonly property bool isHovered: hover.hovered
    readonly property bool isPressed: tap.pressed

    signal pressed()
    signal menuAsked()

    activeFocusOnTab: true
    Accessible.focusable: true
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

    FocusRing { target: item; targetRadius: 12; ringColor: item.colors.text }

    HoverHandler { id: hover }
    TapHandler {
        id: tap
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: item.pressed()
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: item.menuAsked()
        onLongPressed: item.menuAsked()
    }
}
