import QtQuick
import Fendrel.Style
import Fendrel.Types

// What several things cost, how they moved today, and on which way.
Item {
    id: view

    required property CardColors ink
    required property var content
    required property bool isVertical

    signal pressed(address: url)

    readonly property var rows: content.rows
    readonly property int cell: isVertical ? 3 * ink.line + 8 : ink.line
    readonly property bool isOld: content.problem !== "" || content.age !== ""
    readonly property int fitting: Math.max(1, Math.floor((height - age.height + 4) / cell))
    readonly property bool isWide: !isVertical && width >= 190 * Math.max(1, Theme.textScale)
    readonly property int columns: isWide && rows.length > fitting ? 2 : 1
    readonly property int perColumn: Math.min(fitting, Math.ceil(rows.length / columns)) // as many in both
    readonly property bool hasPrices: isWide && columns === 1

    function widest(column: int, text: var): real {
        const shown = rows.slice(column * perColumn, (column + 1) * perColumn)
        return Math.ceil(shown.reduce((most, row) => Math.max(most, measured(text(row))), 0)) + 2
    }
    function moved(row: var): string { return row.value !== "" ? row.value : row.detail }
    // Pixels, of each column. The curves share what names and numbers leave.
    readonly property var shown: Array.from({ length: columns }, (each, column) => column)
    readonly property var moves: shown.map(column => widest(column, moved))
    readonly property var prices: shown.map(column => hasPrices ? widest(column, row => row.detail) + 10 : 0)
    readonly property real spared: grid.width - (columns - 1) * grid.columnSpacing - sum(moves) - sum(prices) - columns * 10
    readonly property var names: shown.map(column => Math.min(widest(column, row => row.title), Math.floor(Math.max(Math.min(4.1 * ink.textSize, spared / columns), spared / columns - 24))))
    readonly property real curveRoom: Math.max(0, Math.floor((spared - sum(names)) / columns))
    function sum(numbers: var): real { return numbers.reduce((sum, number) => sum + number, 0) }
    // It is the height that tells bindings of another font.
    function measured(text: string): real { return metrics.height > 0 ? metrics.advanceWidth(text) : 0 }
    FontMetrics {
        id: metrics
        font { family: age.font.family; pixelSize: view.ink.textSize; weight: Font.DemiBold }
    }

    // In the last line's place.
    CardMark {
        id: mark
        anchors { left: view.isVertical ? undefined : parent.left; right: view.isVertical ? parent.right : undefined
                  verticalCenter: view.isVertical ? undefined : age.verticalCenter; top: view.isVertical ? parent.top : undefined }
        z: 1
        isWanted: view.content.problem !== ""
        ink: view.ink
        content: view.content
    }
    CardLabel {
        id: age
        anchors { left: parent.left; leftMargin: mark.visible && !view.isVertical ? mark.width + 5 : 0; right: parent.right; bottom: parent.bottom }
        height: view.isOld ? (view.isVertical ? 2 : 1) * view.ink.line : 0
        visible: view.isOld
        ink: view.ink
        color: view.ink.quiet
        text: view.content.age !== "" ? view.content.age : view.content.problem
        wrapMode: view.isVertical ? Text.Wrap : Text.NoWrap
        maximumLineCount: view.isVertical ? 2 : 1
        fontSizeMode: Text.HorizontalFit
    }

    Grid {
        id: grid
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: age.top }
        columns: view.columns
        flow: Grid.TopToBottom
        rows: view.perColumn
        columnSpacing: 14

        Repeater {
            model: Math.min(view.rows.length, view.perColumn * view.columns)
            Item {
                id: quote
                required property int index
                readonly property var row: view.rows[index]
                readonly property color tint: view.ink.tone(row.tone)
                readonly property int column: Math.min(view.columns - 1, Math.floor(index / view.perColumn))
                width: view.isVertical ? grid.width : (view.names[column] ?? 0) + view.curveRoom + 10 + (view.prices[column] ?? 0) + (view.moves[column] ?? 0)
                height: Math.min(view.isVertical ? view.cell + 6 : 2 * view.ink.line, grid.height / view.perColumn)

                Rectangle {
                    anchors { fill: parent; leftMargin: -4; rightMargin: -4 }
                    radius: 5
                    color: view.ink.text
                    opacity: press.pressed ? 0.16 : hover.hovered ? 0.08 : 0
                    Behavior on opacity { NumberAnimation { duration: Theme.quick } }
                }
                CardLabel {
                    id: name
                    anchors { left: parent.left; verticalCenter: view.isVertical ? undefined : parent.verticalCenter; top: view.isVertical ? parent.top : undefined }
                    width: view.isVertical ? parent.width - (mark.visible && quote.index === 0 ? 14 : 0) : (view.names[quote.column] ?? 0)
                    ink: view.ink
                    text: quote.row.title
                    font.weight: Font.DemiBold
                    fontSizeMode: Text.HorizontalFit
                }
                CurvePicture {
                    visible: width >= 16 && height >= 4
                    opacity: view.content.isLoading ? 0.55 : 1
                    Behavior on opacity { NumberAnimation { duration: Theme.normal } }
                    anchors {
                        left: view.isVertical ? parent.left : name.right
                        leftMargin: view.isVertical ? 0 : 4
                        right: view.isVertical ? parent.right : view.hasPrices ? price.left : move.left
                        rightMargin: view.isVertical ? 0 : 6
                        top: view.isVertical ? name.bottom : parent.top
                        bottom: view.isVertical ? move.top : parent.bottom
                    }
                    points: quote.row.points
                    color: quote.tint
                }
                CardLabel {
                    id: price
                    anchors { right: move.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
                    width: Math.max(0, (view.prices[quote.column] ?? 0) - 10)
                    visible: view.hasPrices
                    ink: view.ink
                    text: quote.row.detail
                    horizontalAlignment: Text.AlignRight
                    fontSizeMode: Text.HorizontalFit
                }
                CardLabel {
                    id: move
                    anchors { right: parent.right; verticalCenter: view.isVertical ? undefined : parent.verticalCenter; bottom: view.isVertical ? parent.bottom : undefined; bottomMargin: view.isVertical ? 4 : 0 }
                    width: view.isVertical ? parent.width : (view.moves[quote.column] ?? 0)
                    ink: view.ink
                    color: quote.tint
                    text: view.moved(quote.row)
                    font.weight: Font.Medium
                    horizontalAlignment: view.isVertical ? Text.AlignLeft : Text.AlignRight
                    fontSizeMode: Text.HorizontalFit
                }
                HoverHandler { id: hover; enabled: quote.row.address.toString() !== "" }
                TapHandler {
                    id: press
                    enabled: hover.enabled
                    gesturePolicy: TapHandler.ReleaseWithinBounds
                    onTapped: view.pressed(quote.row.address)
                }
            }
        }
    }
}
