import QtQuick
import Fendrel.Style
import Fendrel.Types

// The row of applications: it swells under the pointer, and a mouse picks them up.
ScrollStrip {
    id: section

    required property Colors colors
    required property DockTip tip
    required property DockPanel panel
    required property DockController dock
    required property DockMenus menus
    required property DockDrops drops
    required property BarLayout layout
    required property bool swells

    readonly property int count: apps.count
    readonly property point hand: picking.centroid.scenePosition // what carries, in the window
    // Pixels by which icons stand out of the bar under the pointer, at most.
    readonly property real highestRise: Math.ceil(layout.iconSize * (dock.magnification - 1))

    readonly property Wave wave: Wave {
        start: section.position
        end: section.position + section.length
        pointer: 0
        factor: section.dock.magnification
        reach: 2.5 * section.layout.pitch
        amount: section.isSwelling ? 1 : 0

        Behavior on amount { NumberAnimation { duration: 150; easing.type: Easing.OutQuad } }
    }
    // It follows the pointer as far as the ends of the row, and sinks where it was last when the pointer leaves.
    readonly property bool isSwelling: swells && isNear && panel.isPointerInside && !drops.isActive && !picking.active && count > 0
    property bool isNear: false
    function follow(pointer: point) {
        const point = row.mapFromItem(null, pointer)
        wave.pointer = isVertical ? point.y : point.x
        isNear = wave.pointer >= wave.start && wave.pointer <= wave.end
    }

    // To the next application whose name begins so.
    function seek(letters: string) {
        const from = Array.from({ length: apps.count }, (none, index) => apps.itemAt(index)).findIndex(app => app.activeFocus)
        apps.itemAt(dock.apps.find(letters, from))?.forceActiveFocus(Qt.TabFocusReason)
    }

    isDraggable: false // a mouse picks applications up
    before: wave.before
    after: wave.after
    overhang: highestRise + 32
    spacing: layout.spacing
    visible: count > 0

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Applications")

    move: Transition {
        NumberAnimation { properties: "x,y"; duration: Theme.normal; easing.type: Easing.OutCubic }
    }

    // Applications are picked up in the row, and taken back with Escape.
    DragHandler {
        id: picking
        target: null
        margin: section.wave.isUp ? section.highestRise : 0
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad | PointerDevice.Stylus
        onActiveChanged: {
            if (!active) {
                // One that is broken off, as by another mode, has its button down still.
                if (section.panel.isButtonDown())
                    section.drops.end()
                else
                    section.drops.drop()
                section.panel.releaseKeyboard()
                return
            }
            const row = section.row
            const point = row.mapFromItem(null, centroid.scenePressPosition)
            const app = row.childAt(section.isVertical ? row.width / 2 : point.x, section.isVertical ? point.y : row.height / 2) as AppButton
            if (!app)
                return
            section.panel.borrowKeyboard()
            row.forceActiveFocus() // no button, which would show that it has the keyboard
            section.drops.pickUp(app.bundleID)
            carry()
        }
        onCentroidChanged: if (active) carry()
        function carry() {
            section.drops.moveTo(section.hand.x, section.hand.y)
        }
    }

    Repeater {
        id: apps
        model: section.dock.apps
        delegate: AppButton {
            id: app
            required property bool startsOthers
            required property int index
            readonly property bool isSought: isFront || activeFocus
            colors: section.colors
            tip: section.tip
            hotKey: section.dock.appHotKeys[index] ?? ""
            isVertical: section.isVertical
            edge: section.panel.edge
            iconSize: section.layout.iconSize
            wave: section.wave
            fullSize: Math.ceil(section.layout.iconSize * section.dock.magnification)
            cyclesWithWheel: !section.isCut
            share: section.visibility(app)
            markColor: section.dock.tint
            background: section.dock.background
            leading: startsOthers ? section.layout.startOfOthers : 0
            spacing: section.layout.spacing
            onIsSoughtChanged: if (isSought) section.reveal(app)
            Component.onCompleted: if (isSought) section.reveal(app)
            onIsHoveredChanged: isHovered ? section.dock.restingPointer.enter(app) : section.dock.restingPointer.leave(app)
            onPressed: {
                section.dock.restingPointer.close()
                section.panel.releaseKeyboard()
                section.dock.actions.click(bundleID)
            }
            onWindowAsked: section.dock.actions.openWindow(bundleID)
            onTurned: step => section.dock.actions.cycle(bundleID, step)
            onReceived: load => section.dock.actions.openFiles(bundleID, load.files)
            onMoveAsked: forward => {
                const neighbour = forward ? section.dock.apps.next(bundleID) : section.dock.apps.previous(bundleID)
                if (neighbour !== "")
                    section.dock.actions.place(bundleID, neighbour, forward)
            }
            onMenuAsked: section.menus.showAppMenu(app, bundleID, name, isRunning, isInMode)
        }
    }
}
