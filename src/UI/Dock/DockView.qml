import QtQuick
import Fendrel.Style
import Fendrel.Types

// The dock of one display: modes, applications, and how the focus stands.
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

    Colors {
        id: lookColors
        isDark: root.dock.isDark
    }

    // Where the bar is when it shows; it slides out from there.
    readonly property real barLength: layout.current + pillStrip.length + (apps.count > 0 ? appStrip.length : 0) + 2 * padding
    readonly property real barDepth: (isVertical ? strip.width : strip.height) + 2 * 6
    readonly property real barWidth: isVertical ? barDepth : barLength
    readonly property real barHeight: isVertical ? barLength : barDepth
    readonly property rect resting: Qt.rect(
        edge === Qt.LeftEdge ? margin : edge === Qt.RightEdge ? width - margin - barWidth : Math.round((width - barWidth) / 2),
        edge === Qt.BottomEdge ? height - margin - barHeight : Math.round((height - barHeight) / 2),
        barWidth, barHeight)

    BarLayout {
        id: layout

        // The lines between the sections and the room around them.
        readonly property real separators: (apps.count > 0 ? 9 + 2 * root.spacing : 0) + 9 + 2 * root.spacing
                                         + (minimized.visible ? 9 + 2 * root.spacing : 0) + (trash.visible ? root.spacing : 0)

        room: (root.isVertical ? root.height : root.width) - 2 * root.margin - 2 * root.padding
        steady: separators + chip.longest + focusButton.longest + meter.length + 2 * root.spacing
        current: separators + focusButton.length + (chip.visible ? chip.length + root.spacing : 0)
                 + (meter.visible ? meter.length + root.spacing : 0)
                 + minimized.tilesLength + (trash.visible ? trash.length : 0)
        modeCount: pills.count
        nameLength: root.longestName
        appCount: apps.count + minimized.count + (trash.visible ? 1 : 0)
        fullIconSize: root.dock.iconSize
        fullSpacing: Math.max(0, root.spacing - 4)
        swelling: root.swells ? (root.dock.magnification - 1) * 2.5 * (fullIconSize + iconRoom + fullSpacing) : 0
    }

    // Where nothing blends windows, the bar's outline is the window's own, which nothing can stand out of.
    readonly property bool swells: dock.magnification > 1 && panel.isTransparent && !Theme.reducesMotion

    Wave {
        id: rowWave
        start: appStrip.position
        end: appStrip.position + appStrip.length
        pointer: 0
        factor: root.dock.magnification
        reach: 2.5 * layout.pitch
        amount: isWanted ? 1 : 0

        // It follows the pointer as far as the ends of the row, and sinks where it was last when the pointer leaves.
        readonly property bool isWanted: root.swells && isNear && hover.hovered && !drops.isActive && !picking.active && apps.count > 0
        property bool isNear: false
        function follow() {
            const point = appStrip.row.mapFromItem(root, hover.point.position)
            pointer = root.isVertical ? point.y : point.x
            isNear = pointer >= start && pointer <= end
        }
        Behavior on amount { NumberAnimation { duration: 150; easing.type: Easing.OutQuad } }
    }
    // Of the pills when they have stopped moving.
    property real pillsLength: 0
    property real longestName: 0
    function measurePills() {
        let length = (pills.count - 1) * layout.pillSpacing
        let name = 0
        for (let index = 0; index < pills.count; ++index) {
            const pill = pills.itemAt(index) as ModePill
            if (!pill)
                continue
            length += pill.length
            name = Math.max(name, pill.nameLength)
        }
        longestName = name
        pillsLength = length
    }

    Binding { target: root.panel; property: "bar"; value: root.resting; when: root.width > 0 }
    Binding { target: root.panel; property: "swelling"; value: root.swollen }
    Binding { target: root.panel; property: "isPointerInside"; value: hover.hovered }
    Binding { target: root.panel; property: "isHeld"; value: menu.visible || popover.isWanted || root.panel.hasKeyboard || drops.isActive }

    HoverHandler {
        id: hover
        onPointChanged: if (hovered && root.swells) rowWave.follow()
    }

    // Where icons can stand out of the bar under the pointer.
    readonly property real overhang: Math.ceil(layout.iconSize * (dock.magnification - 1))
    readonly property rect swollen: {
        if (!rowWave.isWanted)
            return Qt.rect(0, 0, 0, 0)
        const row = appStrip.length
        const along = (isVertical ? resting.y : resting.x) + padding + pillStrip.length + 9 + 2 * spacing
        return edge === Qt.BottomEdge ? Qt.rect(along, resting.y - overhang, row, overhang)
             : Qt.rect(edge === Qt.LeftEdge ? resting.x + resting.width : resting.x - overhang, along, overhang, row)
    }

    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Fendrel dock")

    // Arrows go through the items, Home and End to the first and last; Escape gives the keyboard back.
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Escape && drops.isActive) {
            drops.end()
            return
        }
        if (event.matches(StandardKey.Undo)) {
            root.dock.undo.undo()
            event.accepted = true
            return
        }
        const forward = [Qt.Key_Right, Qt.Key_Down].includes(event.key)
        const backward = [Qt.Key_Left, Qt.Key_Up].includes(event.key)
        if (forward || backward) {
            const item = root.Window.activeFocusItem?.nextItemInFocusChain(forward)
            item?.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
            event.accepted = true
        } else if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            const first = pills.itemAt(0)
            const item = event.key === Qt.Key_Home ? first : first?.nextItemInFocusChain(false)
            item?.forceActiveFocus(Qt.TabFocusReason)
            event.accepted = true
        } else if (event.key === Qt.Key_Escape) {
            root.panel.releaseKeyboard()
            event.accepted = true
        } else if (event.text > " " && !(event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier))) {
            // A letter goes to the next application whose name begins with it.
            const from = Array.from({ length: apps.count }, (none, index) => apps.itemAt(index)).findIndex(app => app.activeFocus)
            apps.itemAt(root.dock.apps.find(event.text, from))?.forceActiveFocus(Qt.TabFocusReason)
            event.accepted = true
        }
    }
    Connections {
        target: root.panel
        function onKeyboardTaken() {
            pills.itemAt(0)?.forceActiveFocus(Qt.TabFocusReason)
        }
    }
    // A switch that takes its time can still be hurried with the keyboard; when it is done, the keyboard goes back.
    readonly property string modeID: dock.modeID
    onModeIDChanged: panel.releaseKeyboard()
    readonly property bool isGateOpen: dock.isGateOpen
    onIsGateOpenChanged: if (isGateOpen) panel.releaseKeyboard()

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

        transform: Translate {
            x: root.edge === Qt.LeftEdge ? -slider.offset : root.edge === Qt.RightEdge ? slider.offset : 0
            y: root.edge === Qt.BottomEdge ? slider.offset : 0
        }

        Shadow {
            caster: surface
            casterRadius: surface.radius
            opacity: root.dock.shadow
            visible: root.panel.isTransparent
        }

        // What is seen of the bar, which grows with the row of applications; the bar itself keeps its place.
        Rectangle {
            id: surface
            x: bar.x + (root.isVertical ? 0 : rowWave.before)
            y: bar.y + (root.isVertical ? rowWave.before : 0)
            width: bar.width + (root.isVertical ? 0 : rowWave.after - rowWave.before)
            height: bar.height + (root.isVertical ? rowWave.after - rowWave.before : 0)
            radius: root.dock.cornerRadius
            color: lookColors.faded(root.dock.background, root.panel.isTransparent && !Theme.increasesContrast ? root.dock.opacity : 1)
            border.width: Theme.increasesContrast ? 2 : 1
            readonly property color line: Theme.increasesContrast ? lookColors.text : lookColors.faded(lookColors.text, root.dock.border)
            border.color: root.panel.isTransparent ? line : Qt.tint(root.dock.background, line)
            Behavior on color { ColorAnimation { duration: Theme.slow } }
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
                id: strip
                anchors.centerIn: parent
                isVertical: root.isVertical
                spacing: root.spacing

                ScrollStrip {
                    id: pillStrip
                    transform: Translate { x: root.isVertical ? 0 : rowWave.before; y: root.isVertical ? rowWave.before : 0 }
                    isVertical: root.isVertical
                    room: layout.pillsRoom
                    fullLength: root.pillsLength
                    isMoving: bar.moves
                    spacing: layout.pillSpacing

                    Accessible.role: Accessible.Grouping
                    Accessible.name: qsTr("Modes")

                    Repeater {
                        id: pills
                        model: root.dock.modes
                        onItemRemoved: root.measurePills()
                        ModePill {
                            id: pill
                            readonly property bool isSought: isCurrent || isPending || activeFocus
                            colors: lookColors
                            tip: dockTip
                            isVertical: root.isVertical
                            pendingSeconds: root.focusState.pendingSeconds
                            size: layout.pillSize
                            isCompact: layout.isCompact
                            isTipForced: isPending && !root.dock.isGateOpen
                            opacity: pillStrip.visibility(pill)
                            onLengthChanged: root.measurePills()
                            onNameLengthChanged: root.measurePills()
                            onIsSoughtChanged: if (isSought) pillStrip.reveal(pill)
                            Component.onCompleted: if (isSought) pillStrip.reveal(pill)
                            background: root.dock.background
                            onPressed: root.dock.requestMode(modeID)
                            onAppDropped: bundleID => root.dock.actions.add(bundleID, modeID)
                            onMenuAsked: menus.showModeMenu(pill, modeID, name, isCurrent, heldCount)
                        }
                    }
                }

                Separator {
                    colors: lookColors
                    isVertical: root.isVertical
                    visible: apps.count > 0
                    transform: Translate { x: root.isVertical ? 0 : rowWave.before; y: root.isVertical ? rowWave.before : 0 }
                }

                ScrollStrip {
                    id: appStrip
                    isVertical: root.isVertical
                    room: layout.appsRoom(pillStrip.length)
                    isMoving: bar.moves
                    isDraggable: false // a mouse picks applications up
                    before: rowWave.before
                    after: rowWave.after
                    overhang: root.overhang + 32
                    spacing: layout.spacing
                    visible: apps.count > 0

                    Accessible.role: Accessible.Grouping
                    Accessible.name: qsTr("Applications")

                    move: Transition {
                        NumberAnimation { properties: "x,y"; duration: Theme.normal; easing.type: Easing.OutCubic }
                    }

                    // Applications are picked up in the row, and taken back with Escape.
                    DragHandler {
                        id: picking
                        target: null
                        margin: rowWave.isUp ? root.overhang : 0
                        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad | PointerDevice.Stylus
                        onActiveChanged: {
                            if (!active) {
                                drops.drop()
                                root.panel.releaseKeyboard()
                                return
                            }
                            const point = appStrip.row.mapFromItem(null, centroid.scenePressPosition)
                            const app = appStrip.row.childAt(root.isVertical ? appStrip.row.width / 2 : point.x, root.isVertical ? point.y : appStrip.row.height / 2) as AppButton
                            if (!app)
                                return
                            root.panel.borrowKeyboard()
                            root.forceActiveFocus()
                            drops.pickUp(app.bundleID)
                            follow()
                        }
                        onCentroidChanged: if (active) follow()
                        function follow() {
                            const point = centroid.scenePosition
                            drops.moveTo(point.x, point.y)
                        }
                    }

                    Repeater {
                        id: apps
                        model: root.dock.apps
                        delegate: AppButton {
                            id: app
                            required property bool startsOthers
                            readonly property bool isSought: isFront || activeFocus
                            colors: lookColors
                            tip: dockTip
                            isVertical: root.isVertical
                            edge: root.edge
                            iconSize: layout.iconSize
                            wave: rowWave
                            fullSize: Math.ceil(layout.iconSize * root.dock.magnification)
                            cyclesWithWheel: !appStrip.isCut
                            share: appStrip.visibility(app)
                            markColor: root.dock.tint
                            background: root.dock.background
                            leading: startsOthers ? layout.startOfOthers : 0
                            onIsSoughtChanged: if (isSought) appStrip.reveal(app)
                            Component.onCompleted: if (isSought) appStrip.reveal(app)
                            onIsHoveredChanged: isHovered ? root.dock.restingPointer.enter(app) : root.dock.restingPointer.leave(app)
                            onPressed: {
                                root.dock.restingPointer.close()
                                root.panel.releaseKeyboard()
                                root.dock.actions.click(bundleID)
                            }
                            onWindowAsked: root.dock.actions.openWindow(bundleID)
                            onTurned: step => root.dock.actions.cycle(bundleID, step)
                            onReceived: load => root.dock.actions.openFiles(bundleID, load.files)
                            onMoveAsked: forward => {
                                const neighbour = forward ? root.dock.apps.next(bundleID) : root.dock.apps.previous(bundleID)
                                if (neighbour !== "")
                                    root.dock.actions.place(bundleID, neighbour, forward)
                            }
                            onMenuAsked: menus.showAppMenu(app, bundleID, name, isRunning, isInMode)
                        }
                    }
                }

                // What stands behind the applications.
                Line {
                    isVertical: root.isVertical
                    spacing: root.spacing
                    transform: Translate { x: root.isVertical ? 0 : rowWave.after; y: root.isVertical ? rowWave.after : 0 }

                    MinimizedStrip {
                        id: minimized
                        colors: lookColors
                        tip: dockTip
                        isVertical: root.isVertical
                        spacing: root.spacing
                        dock: root.dock
                        menus: menus
                        iconSize: layout.iconSize
                        isMoving: bar.moves
                    }

                    Separator { colors: lookColors; isVertical: root.isVertical }

                    // Where widgets go.
                    Item { id: widgets }

                    VerdictChip {
                        id: chip
                        colors: lookColors
                        tip: dockTip
                        isVertical: root.isVertical
                        verdict: root.verdict
                        wordsRoom: Math.min(150, Math.round(root.width / 9))
                        onPressed: menus.correct(chip)
                    }

                    FocusButton {
                        id: focusButton
                        colors: lookColors
                        tip: dockTip
                        isVertical: root.isVertical
                        focusState: root.focusState
                        tint: root.dock.tint
                        onPressed: menus.chooseFocus(focusButton)
                        onMenuAsked: pressed()
                    }

                    BudgetMeter {
                        id: meter
                        colors: lookColors
                        tip: dockTip
                        isVertical: root.isVertical
                        focusState: root.focusState
                        tint: root.dock.tint
                    }

                    TrashTile {
                        id: trash
                        visible: root.dock.trash.isShown
                        colors: lookColors
                        tip: dockTip
                        isVertical: root.isVertical
                        dock: root.dock
                        iconSize: layout.iconSize
                        onMenuAsked: menus.showTrashMenu(trash)
                    }
                }
            }

            // The rest of the bar has the menu of the dock itself.
            TapHandler {
                acceptedButtons: Qt.RightButton
                onTapped: menus.showDockMenu(focusButton)
            }
        }

        DockTip {
            id: dockTip
            anchors.fill: parent
            edge: root.edge
            bar: bar
            isSuppressed: menu.visible || popover.isWanted || (drops.isActive && !drops.target)
            scrolled: appStrip.position + pillStrip.position
        }
    }

    DockDrops {
        id: drops
        dock: root.dock
        view: root
        bar: bar
        items: strip
        strip: appStrip
        isVertical: root.isVertical
        iconSize: layout.iconSize
        pitch: layout.pitch
    }

    CarriedPicture {
        visible: drops.isActive && drops.load.isOurs
        icon: visible ? root.dock.apps.icon(drops.load.app) : ""
        size: layout.iconSize
        pointer: Qt.point(root.panel.x + picking.centroid.scenePosition.x, root.panel.y + picking.centroid.scenePosition.y)
        isFading: drops.isLeaving && root.dock.apps.isInMode(drops.load?.app ?? "")
        hint: isFading ? qsTr("Remove") : ""
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

    WindowsPopover {
        id: popover
        colors: lookColors
        panel: root.panel
        dock: root.dock
        isTransparent: root.panel.isTransparent
        isSuppressed: menu.visible || drops.isActive || !root.panel.isShown
    }

    UndoCard {
        colors: lookColors
        panel: root.panel
        undo: root.dock.undo
        isTransparent: root.panel.isTransparent
    }

    DockMenus {
        id: menus
        popup: menu
        panel: root.panel
        dock: root.dock
        focusState: root.focusState
        verdict: root.verdict
    }
}
