import QtQuick
import Fendrel.Style
import Fendrel.Types

// Behind the applications, while the system's dock is replaced: the windows that were minimised.
Line {
    id: strip

    required property Colors colors
    required property DockTip tip
    required property DockController dock
    required property DockMenus menus
    required property int iconSize
    required property bool isMoving

    readonly property int count: tiles.count
    readonly property int pitch: iconSize + 6
    readonly property int most: 5 // that are seen at once
    // From numbers, not from the items: while they come and go, theirs change.
    readonly property real tilesLength: Math.min(count, most) * pitch

    visible: count > 0

    Separator { colors: strip.colors; isVertical: strip.isVertical }
    ScrollStrip {
        isVertical: strip.isVertical
        room: strip.most * strip.pitch
        fullLength: strip.count * strip.pitch
        isMoving: strip.isMoving

        Accessible.role: Accessible.Grouping
        Accessible.name: qsTr("Minimized windows")

        add: Transition {
            NumberAnimation { properties: "coming,scale"; from: 0; to: 1; duration: Theme.normal; easing.type: Easing.OutCubic }
        }
        move: Transition {
            NumberAnimation { properties: "x,y"; duration: Theme.normal; easing.type: Easing.OutCubic }
            NumberAnimation { properties: "coming,scale"; to: 1; duration: Theme.normal }
        }

        Repeater {
            id: tiles
            model: strip.dock.minimized
            MinimizedTile {
                id: tile
                colors: strip.colors
                tip: strip.tip
                isVertical: strip.isVertical
                previews: strip.dock.previews
                iconSize: strip.iconSize
                onPressed: strip.dock.actions.raiseWindow(windowID)
                onMenuAsked: strip.menus.showWindowMenu(tile, windowID, title)
            }
        }
    }
}
