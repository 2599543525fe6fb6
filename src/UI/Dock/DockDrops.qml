import QtQuick
import Fendrel.Types

// What becomes of what is dragged over the dock, from wherever it comes: an application finds a place among those of the
// mode, goes to what takes it, or leaves the dock; files go to what takes them.
QtObject {
    id: drops

    required property DockPanel panel
    required property DockController dock
    required property Item view  // in whose coordinates the pointer is told
    required property Item bar
    required property Item items // in the bar, all that may take something
    required property ScrollStrip strip // of the applications
    required property bool isVertical
    required property int iconSize
    required property real pitch // pixels from one application to the next

    property var load: null // { app, files, isOurs }; ours was picked up in this dock
    property DockItem target: null
    property int place: DockAppsModel.AtHome
    readonly property bool isActive: load !== null
    readonly property bool isLeaving: isActive && place === DockAppsModel.Nowhere && load.isOurs

    function pickUp(app: string) {
        begin({ app: app, files: [], isOurs: true })
    }
    function enter(files: var) {
        const app = files.length === 1 ? dock.actions.applicationAt(files[0]) : ""
        begin({ app: app, files: files.map(file => file), isOurs: false }) // the event's own list goes with it
    }
    function begin(what: var) {
        load = what
        place = what.isOurs ? DockAppsModel.AtHome : DockAppsModel.Nowhere
    }

    // Whether letting go here would do something.
    function moveTo(x: real, y: real): bool {
        if (!isActive)
            return false
        aim(itemAt(items, items.mapFromItem(view, onLine(Qt.point(x, y)))))
        if (load.app === "")
            return target !== null
        place = target ? (load.isOurs ? DockAppsModel.AtHome : DockAppsModel.Nowhere) : placeAt(x, y)
        dock.apps.carry(load.app, place)
        return target !== null || place >= 0 || isLeaving
    }

    function drop(): bool {
        if (!isActive)
            return false
        const done = load
        const taker = target
        const isPlaced = place >= 0
        const leaves = isLeaving && dock.apps.isInMode(done.app)
        if (taker) {
            taker.received(done)
        } else if (isPlaced) {
            const previous = dock.apps.previous(done.app)
            const next = dock.apps.next(done.app)
            if (!dock.apps.isInMode(done.app))
                dock.actions.add(done.app, dock.modeID)
            if (previous !== "")
                dock.actions.place(done.app, previous, true)
            else if (next !== "")
                dock.actions.place(done.app, next, false)
        } else if (leaves) {
            dock.actions.remove(done.app, dock.modeID)
        }
        end()
        return taker !== null || isPlaced || leaves
    }

    function end() {
        aim(null)
        load = null
        place = DockAppsModel.AtHome
        dock.apps.letGo()
    }

    function aim(item: DockItem) {
        if (item === target)
            return
        if (target)
            target.isTarget = false
        target = item
        if (target)
            target.isTarget = true
    }

    // Items stand in one line, and take what is let go between them and the bar's sides or the screen's edge, too.
    function onLine(point: point): point {
        const middle = items.mapToItem(view, items.width / 2, items.height / 2)
        const across = isVertical ? Math.abs(point.x - middle.x) - bar.width / 2 : Math.abs(point.y - middle.y) - bar.height / 2
        return across > 10 ? point : isVertical ? Qt.point(middle.x, point.y) : Qt.point(point.x, middle.y)
    }

    // The item at a point that takes what is carried.
    function itemAt(parent: Item, point: point): DockItem {
        const child = parent.childAt(point.x, point.y)
        if (!child)
            return null
        const item = child as DockItem
        if (item)
            return item.takes(load) ? item : null
        return itemAt(child, child.mapFromItem(parent, point))
    }

    function placeAt(x: real, y: real): int {
        const inBar = bar.mapFromItem(view, x, y)
        const across = isVertical ? Math.max(-inBar.x, inBar.x - bar.width) : Math.max(-inBar.y, inBar.y - bar.height)
        const along = isVertical ? Math.max(-inBar.y, inBar.y - bar.height) : Math.max(-inBar.x, inBar.x - bar.width)
        const elsewhere = load.isOurs ? DockAppsModel.AtHome : DockAppsModel.Nowhere
        if (Math.max(across, along) > iconSize) // away, unless it is over the dock of another display
            return panel.isOverOther(Qt.point(x, y), iconSize) ? elsewhere : DockAppsModel.Nowhere
        if (dock.apps.rowCount() === 0)
            return 0
        const inRow = strip.row.mapFromItem(view, x, y)
        const position = isVertical ? inRow.y : inRow.x
        const inStrip = position - strip.position
        if (inStrip < -pitch / 2 || inStrip > strip.length + pitch / 2)
            return elsewhere
        if (strip.isCut && (inStrip < pitch / 2 || inStrip > strip.length - pitch / 2))
            strip.scrollTo(strip.position + (inStrip < pitch / 2 ? -pitch : pitch))
        const isCounted = place >= 0 || (place === DockAppsModel.AtHome && dock.apps.isInMode(load.app))
        const last = dock.apps.modeCount - (isCounted ? 1 : 0) // the place behind all others
        const wanted = Math.floor(position / pitch)
        // What is not the mode's may also stay where the others are.
        return wanted > last && load.isOurs && !dock.apps.isInMode(load.app) ? DockAppsModel.AtHome
             : Math.max(0, Math.min(last, wanted))
    }
}
