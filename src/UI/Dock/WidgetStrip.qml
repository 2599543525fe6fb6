import QtQuick
import Fendrel.Style
import Fendrel.Types
import Fendrel.Widgets

// The cards of the mode's widgets, which a mouse picks up, and the line behind them.
Line {
    id: section

    required property Colors colors
    required property DockTip tip
    required property DockPanel panel
    required property DockController dock
    required property DockMenus menus
    required property CardDrag drag
    required property BarLayout layout
    required property bool isMoving

    readonly property int count: tiles.count
    readonly property real frame: 9 + 2 * spacing // the line and the room around it
    readonly property real position: strip.position
    readonly property Item row: strip.row
    readonly property point hand: picking.centroid.scenePosition // what carries, in the window

    // As high as the place of an icon that is pointed at.
    readonly property real extent: layout.iconSize + 10
    readonly property real fullExtent: layout.fullIconSize + 10
    // From numbers, not from the items: while they come and go, theirs change.
    readonly property var steps: dock.widgets.steps
    readonly property var lengths: steps.map(sizes => sizes.map(size => metrics.length(size, fullExtent, isVertical)))
    readonly property var sizes: steps.map((sizes, index) => sizes[layout.cardSteps[index] ?? 0])
    readonly property real cardsLength: sizes.reduce((sum, size) => sum + metrics.length(size, extent, isVertical), Math.max(0, sizes.length - 1) * spacing)
    readonly property real stripLength: strip.length

    visible: count > 0 || drag.isActive // what is invisible loses what it carries

    CardMetrics { id: metrics }

    // Where the card that is carried would stand among the others.
    function nearest(point: point): int {
        const shown = Array.from({ length: count }, (none, index) => tiles.itemAt(index) as WidgetTile)
        const inRow = row.mapFromItem(null, point)
        const position = isVertical ? inRow.y : inRow.x
        const own = isVertical ? carriedArea.height : carriedArea.width
        const inStrip = position - strip.position
        if (inStrip < -own || inStrip > strip.length + own)
            return WidgetCardsModel.AtHome
        if (strip.isCut && (inStrip < own / 2 || inStrip > strip.length - own / 2))
            strip.scrollTo(strip.position + (inStrip < own / 2 ? -own : own))
        let start = 0
        let place = 0
        for (const other of shown.filter(tile => tile.widgetID !== drag.widgetID)) {
            // Past the middle between standing before it and standing behind it.
            if (position < start + (own + other.length + spacing) / 2)
                break
            start += other.length + spacing
            ++place
        }
        return place
    }
    // As it was picked up: its tile goes where the card leaves the dock.
    property var carriedRow: null
    readonly property size carriedArea: carriedRow ? Qt.size(carriedRow.width, carriedRow.height) : Qt.size(0, 0)
    readonly property Component carriedCard: Component {
        WidgetCard {
            readonly property var row: section.carriedRow
            colors: section.colors
            content: row.content
            title: row.title
            shortTitle: row.shortTitle
            symbol: row.symbol
            accent: row.accent
            size: row.size
            isVertical: section.isVertical
            extent: section.extent
        }
    }

    ScrollStrip {
        id: strip
        isVertical: section.isVertical
        room: section.layout.cardsRoom
        fullLength: section.cardsLength
        spacing: section.spacing
        isDraggable: false // a mouse picks cards up
        isMoving: section.isMoving

        Accessible.role: Accessible.Grouping
        Accessible.name: qsTr("Widgets")

        move: Transition {
            NumberAnimation { properties: "x,y"; duration: Theme.normal; easing.type: Easing.OutCubic }
        }

        DragHandler {
            id: picking
            target: null
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad | PointerDevice.Stylus
            onActiveChanged: {
                if (!active) {
                    // One that is broken off, as by another mode, has its button down still.
                    if (section.panel.isButtonDown())
                        section.drag.end()
                    else
                        section.drag.drop()
                    section.panel.releaseKeyboard()
                    return
                }
                const row = section.row
                const point = row.mapFromItem(null, centroid.scenePressPosition)
                const tile = row.childAt(section.isVertical ? row.width / 2 : point.x, section.isVertical ? point.y : row.height / 2) as WidgetTile
                if (!tile)
                    return
                section.panel.borrowKeyboard()
                row.forceActiveFocus() // no card, which would show that it has the keyboard
                section.carriedRow = { content: tile.content, title: tile.title, shortTitle: tile.shortTitle, symbol: tile.symbol,
                                       accent: tile.accent, size: tile.fittingSize, width: tile.width, height: tile.height }
                section.drag.pickUp(tile.widgetID)
                carry()
            }
            onCentroidChanged: if (active) carry()
            function carry() {
                const point = centroid.scenePosition // `hand` may not have followed yet
                section.drag.moveTo(point, section.nearest(point))
            }
        }

        Repeater {
            id: tiles
            model: section.dock.widgets
            WidgetTile {
                id: tile
                required property int index
                required property var sizes
                required property string size
                readonly property bool isSought: activeFocus
                colors: section.colors
                tip: section.tip
                isVertical: section.isVertical
                fittingSize: section.sizes[index] ?? size
                extent: section.extent
                isMoving: section.isMoving
                ticked: section.dock.widgetActions.ticked
                share: strip.visibility(tile)
                onIsSoughtChanged: if (isSought) strip.reveal(tile)
                onPressed: {
                    if (tile.takesAdditions) {
                        section.menus.addReminder(tile)
                        return
                    }
                    section.panel.releaseKeyboard()
                    section.dock.widgetActions.press(widgetID)
                }
                onToggled: (task, on) => section.dock.widgetActions.tick(task, on)
                onAdditionAsked: section.menus.addReminder(tile)
                onRowPressed: address => {
                    section.panel.releaseKeyboard()
                    section.dock.widgetActions.open(address)
                }
                onMoveAsked: step => section.dock.widgetActions.move(widgetID, step)
                onMenuAsked: section.menus.showWidgetMenu(tile, size, sizes)
            }
        }
    }

    Separator { colors: section.colors; isVertical: section.isVertical }
}
