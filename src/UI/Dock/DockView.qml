import QtQuick
import Fendrel.Style
import Fendrel.Types

// The dock of one display: modes, applications, and how the focus stands. Here is where its parts are and how they meet.
FocusScope {
    id: root

    required property DockPanel panel
    required property DockController dock
    required property FocusController focusState
    required property VerdictController verdict

    readonly property int edge: panel.edge
    readonly property bool isVertical: edge !== Qt.BottomEdge
    readonly property int margin: 8
    readonly property int padding: 9
    readonly property real spacing: dock.spacing
    readonly property real separatorLength: 9 + 2 * spacing // with the room around it

    Colors {
        id: lookColors
        isDark: root.dock.isDark
        isClear: root.panel.isTransparent && root.dock.opacity < 0.85
    }

    // Where the bar is when it shows; it slides out from there.
    readonly property real barLength: layout.current + modes.length + (apps.count > 0 ? apps.length : 0) + 2 * padding
    readonly property real barDepth: (isVertical ? sections.width : sections.height) + 2 * 6
    readonly property real barWidth: isVertical ? barDepth : barLength
    readonly property real barHeight: isVertical ? barLength : barDepth
    readonly property rect resting: Qt.rect(
        edge === Qt.LeftEdge ? margin : edge === Qt.RightEdge ? width - margin - barWidth : Math.round((width - barWidth) / 2),
        edge === Qt.BottomEdge ? height - margin - barHeight : Math.round((height - barHeight) / 2),
        barWidth, barHeight)

    BarLayout {
        id: layout

        readonly property real appsSeparator: apps.count > 0 ? root.separatorLength : 0

        room: (root.isVertical ? root.height : root.width) - 2 * root.margin - 2 * root.padding
        steady: appsSeparator + end.steady
        current: appsSeparator + end.current
        fullWordsRoom: root.isVertical ? 0 : Math.min(Math.round(150 * Math.max(1, Theme.textScale)), Math.round(root.width / 9))
        modeCount: modes.count
        nameLength: modes.longestName
        appCount: apps.count + end.tileCount
        fullIconSize: root.dock.iconSize
        fullSpacing: root.spacing - 4 // icons keep two pixels at least
        cards: end.cards.lengths
        cardSpacing: end.cards.spacing
        cardsFrame: end.cards.frame
        swelling: root.swells ? (root.dock.magnification - 1) * 2.5 * (fullIconSize + iconRoom + fullSpacing) : 0
    }

    // Where nothing blends windows, the bar's outline is the window's own, which nothing can stand out of.
    readonly property bool swells: dock.magnification > 1 && panel.isTransparent && !Theme.reducesMotion
    // Where icons can stand out of the bar under the pointer.
    readonly property rect swollen: {
        if (!apps.isSwelling)
            return Qt.rect(0, 0, 0, 0)
        const rise = apps.highestRise
        const along = (isVertical ? resting.y : resting.x) + padding + modes.length + separatorLength
        return edge === Qt.BottomEdge ? Qt.rect(along, resting.y - rise, apps.length, rise)
             : Qt.rect(edge === Qt.LeftEdge ? resting.x + resting.width : resting.x - rise, along, rise, apps.length)
    }

    // Where the bar is drawn: as it swells, and on its way in and out.
    readonly property rect seen: Qt.rect(surface.area.x + slider.shift.x, surface.area.y + slider.shift.y, surface.area.width, surface.area.height)

    Binding { target: root.panel; property: "bar"; value: root.resting; when: root.width > 0 }
    Binding { target: root.panel; property: "swelling"; value: root.swollen }
    Binding { target: root.panel; property: "surface"; value: root.seen }
    Binding { target: root.panel; property: "isPointerInside"; value: hover.hovered }
    Binding { target: root.panel; property: "isHeld"; value: menu.visible || reminder.visible || popover.isWanted || root.panel.hasKeyboard || drops.isActive || cardDrag.isActive }

    HoverHandler {
        id: hover
        onPointChanged: if (hovered && root.swells) apps.follow(point.scenePosition)
    }

    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Fendrel dock")

    Keys.onPressed: event => keys.press(event)
    DockKeys {
        id: keys
        panel: root.panel
        dock: root.dock
        drops: drops
        cards: cardDrag
        modes: modes
        apps: apps
    }

    // Where nothing blends windows, the window's own shape makes the corners, and the edge of a dock that hides.
    Rectangle {
        anchors.fill: parent
        visible: !root.panel.isTransparent
        color: root.dock.background
    }

    Item {
        id: slider
        anchors.fill: parent

        readonly property real away: root.panel.isShown ? 0 : (root.isVertical ? root.barWidth : root.barHeight) + root.margin + 20
        property real offset: away
        Behavior on offset {
            enabled: root.panel.isTransparent
            NumberAnimation { duration: Theme.slow; easing.type: Easing.OutCubic }
        }

        readonly property point shift: root.edge === Qt.LeftEdge ? Qt.point(-offset, 0)
            : root.edge === Qt.RightEdge ? Qt.point(offset, 0) : Qt.point(0, offset)
        transform: Translate { x: slider.shift.x; y: slider.shift.y }

        BarSurface {
            id: surface
            anchors.fill: parent
            colors: lookColors
            panel: root.panel
            dock: root.dock
            bar: bar
            wave: apps.wave
            isVertical: root.isVertical
        }

        Item {
            id: bar
            x: root.resting.x
            y: root.resting.y
            width: root.barWidth
            height: root.barHeight

            Behavior on x { enabled: bar.moves && !root.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on width { enabled: bar.moves && !root.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on y { enabled: bar.moves && root.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on height { enabled: bar.moves && root.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            // What is there at the start is simply there; only later changes move.
            property bool isReady: false
            // Where nothing blends windows, theirs is cut to the bar at once.
            readonly property bool moves: isReady && root.panel.isTransparent && root.panel.isShown
            SequentialAnimation {
                running: true
                PauseAnimation { duration: 500 }
                PropertyAction { target: bar; property: "isReady"; value: true }
            }

            Line {
                id: sections
                anchors.centerIn: parent
                isVertical: root.isVertical
                spacing: root.spacing

                ModeSection {
                    id: modes
                    transform: Translate { x: root.isVertical ? 0 : apps.before; y: root.isVertical ? apps.before : 0 }
                    isVertical: root.isVertical
                    isMoving: bar.moves
                    colors: lookColors
                    tip: dockTip
                    dock: root.dock
                    focusState: root.focusState
                    menus: menus
                    layout: layout
                }
                Separator {
                    transform: Translate { x: root.isVertical ? 0 : apps.before; y: root.isVertical ? apps.before : 0 }
                    isVertical: root.isVertical
                    colors: lookColors
                    visible: apps.count > 0
                }
                AppSection {
                    id: apps
                    isVertical: root.isVertical
                    isMoving: bar.moves
                    room: layout.appsRoom(modes.length)
                    colors: lookColors
                    tip: dockTip
                    panel: root.panel
                    dock: root.dock
                    menus: menus
                    drops: drops
                    layout: layout
                    swells: root.swells
                }
                EndSection {
                    id: end
                    transform: Translate { x: root.isVertical ? 0 : apps.after; y: root.isVertical ? apps.after : 0 }
                    isVertical: root.isVertical
                    isMoving: bar.moves
                    spacing: root.spacing
                    colors: lookColors
                    tip: dockTip
                    panel: root.panel
                    drag: cardDrag
                    dock: root.dock
                    focusState: root.focusState
                    verdict: root.verdict
                    menus: menus
                    layout: layout
                }
            }

            // The rest of the bar has the menu of the dock itself.
            TapHandler {
                acceptedButtons: Qt.RightButton
                onTapped: menus.showDockMenu(end.center)
            }
        }

        DockTip {
            id: dockTip
            anchors.fill: parent
            edge: root.edge
            bar: bar
            isSuppressed: menu.visible || reminder.visible || popover.isWanted || (drops.isActive && !drops.target) || cardDrag.isActive
            scrolled: apps.position + modes.position + end.cards.position
        }
    }

    Connections {
        target: root.panel
        function onLeaves() {
            drops.end()
            cardDrag.end()
        }
    }

    DockDrops {
        id: drops
        panel: root.panel
        dock: root.dock
        view: root
        bar: bar
        items: sections
        strip: apps
        isVertical: root.isVertical
        iconSize: layout.iconSize
        pitch: layout.pitch
    }

    CardDrag {
        id: cardDrag
        panel: root.panel
        dock: root.dock
        view: root
        bar: bar
        reach: layout.iconSize
    }

    CarriedPicture {
        visible: drops.isActive && drops.load.isOurs
        area: Qt.size(layout.iconSize, layout.iconSize)
        pointer: Qt.point(root.panel.x + apps.hand.x, root.panel.y + apps.hand.y)
        isFading: drops.isLeaving && root.dock.apps.isInMode(drops.load?.app ?? "")
        hint: isFading ? qsTr("Remove") : ""

        AppPicture {
            source: drops.isActive && drops.load.isOurs ? root.dock.apps.icon(drops.load.app) : ""
            size: layout.iconSize
        }
    }
    CarriedPicture {
        visible: cardDrag.isActive
        area: end.cards.carriedArea
        pointer: Qt.point(root.panel.x + end.cards.hand.x, root.panel.y + end.cards.hand.y)
        isFading: cardDrag.isLeaving
        hint: isFading ? qsTr("Remove") : ""

        Loader {
            anchors.fill: parent
            active: cardDrag.isActive
            sourceComponent: end.cards.carriedCard
        }
    }

    // What comes from other programs. It is asked at every move whether this place takes it.
    DropArea {
        anchors.fill: parent
        onEntered: drag => drops.enter(drag.urls)
        onPositionChanged: drag => drag.accepted = drops.moveTo(drag.x, drag.y)
        onExited: drops.end()
        onDropped: drop => {
            drops.moveTo(drop.x, drop.y)
            if (drops.drop())
                drop.accept(Qt.CopyAction)
            else
                drop.accepted = false
        }
    }

    DockMenu {
        id: menu
        colors: lookColors
        isTransparent: root.panel.isTransparent
        onDismissed: root.panel.menuClosed()
    }

    ReminderField {
        id: reminder
        colors: lookColors
        isTransparent: root.panel.isTransparent
        onAdded: title => root.dock.widgetActions.addReminder(title)
        onDismissed: root.panel.menuClosed()
    }

    WindowsPopover {
        id: popover
        colors: lookColors
        panel: root.panel
        dock: root.dock
        isTransparent: root.panel.isTransparent
        isSuppressed: menu.visible || reminder.visible || drops.isActive || !root.panel.isShown
    }

    NoticeCard {
        colors: lookColors
        panel: root.panel
        notices: root.dock.notices
        isTransparent: root.panel.isTransparent
        rise: root.swells ? apps.highestRise : 0
        label: dockTip.area
    }

    DockMenus {
        id: menus
        popup: menu
        reminder: reminder
        panel: root.panel
        dock: root.dock
        focusState: root.focusState
        verdict: root.verdict
    }
}
