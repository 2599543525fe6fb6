import QtQuick
import Fendrel.Style

// The weather now, and in the hours to come.
Item {
    id: view

    required property CardColors ink
    required property var content
    required property string symbol
    required property string size
    required property bool isVertical

    readonly property var coming: content.rows.slice(1) // the first is what the face says
    readonly property int cell: isVertical ? 2 * ink.line + 5 : Math.max(symbolSize + 6, 8 + widest)
    readonly property real widest: coming.reduce((most, row) => Math.max(most, hasTitles ? measured(row.title) : 0, measured(row.value)), 0)
    readonly property bool hasCredit: isVertical && size === "large"
    readonly property bool hasTitles: isVertical || height >= 2 * ink.line + 12
    readonly property int symbolSize: Math.max(10, Math.min(17, isVertical ? ink.line : height - (hasTitles ? 2 : 1) * ink.line))
    readonly property real room: isVertical ? height - face.height - 6 - credit.height : width - face.width - 8
    readonly property int count: Math.max(0, Math.min(coming.length, Math.floor(room / cell)))

    CardFace {
        id: face
        anchors { left: parent.left; top: parent.top }
        width: view.isVertical ? parent.width : Math.min(Math.max(wanted, 0.36 * parent.width), Math.round(parent.width * (view.content.age !== "" ? 1 : 0.62)))
        height: view.isVertical ? Math.min(parent.height, view.width + (wraps ? 2 : 1) * view.ink.line) : parent.height
        ink: view.ink
        content: view.content
        symbol: view.symbol
        isBeside: !view.isVertical
        wraps: view.isVertical && view.content.age !== ""
        needsCredit: view.size === "large" && !view.isVertical
    }

    // It is the height that tells bindings of another font.
    function measured(text: string): real { return metrics.height > 0 ? metrics.advanceWidth(text) : 0 }
    FontMetrics {
        id: metrics
        font { family: credit.font.family; pixelSize: view.ink.textSize; weight: Font.Medium }
    }
    CardLabel {
        id: credit
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: view.hasCredit ? 2 * view.ink.line : 0
        visible: view.hasCredit
        ink: view.ink
        color: view.ink.quiet
        text: view.content.credit
        wrapMode: Text.Wrap
        fontSizeMode: Text.HorizontalFit
        verticalAlignment: Text.AlignBottom
    }

    Item {
        anchors {
            left: view.isVertical ? parent.left : face.right
            leftMargin: view.isVertical ? 0 : 8
            right: parent.right
            top: view.isVertical ? face.bottom : parent.top
            topMargin: view.isVertical ? 6 : 0
            bottom: credit.top
        }
        Grid {
            id: grid
            anchors.fill: parent
            columns: view.isVertical ? 1 : Math.max(1, view.count)
            readonly property real step: (view.isVertical ? height : width) / Math.max(1, view.count)

            Repeater {
                model: view.count
                Item {
                    id: hour
                    required property int index
                    readonly property var row: view.coming[index]
                    width: view.isVertical ? grid.width : grid.step
                    height: view.isVertical ? grid.step : grid.height

                    CardLabel {
                        id: title
                        anchors { left: parent.left; right: parent.right; top: parent.top }
                        height: view.hasTitles ? view.ink.line : 0
                        visible: view.hasTitles
                        ink: view.ink
                        color: view.ink.quiet
                        text: hour.row.title
                        horizontalAlignment: view.isVertical ? Text.AlignLeft : Text.AlignHCenter
                    }
                    Symbol {
                        id: sky
                        anchors {
                            left: parent.left
                            leftMargin: view.isVertical ? 0 : (hour.width - size) / 2
                            top: title.bottom
                            topMargin: view.isVertical ? 0 : Math.max(0, (value.y - title.height - size) / 2)
                        }
                        name: hour.row.symbol
                        size: view.symbolSize
                        color: view.ink.mark
                    }
                    CardLabel {
                        id: value
                        anchors {
                            left: view.isVertical ? sky.right : parent.left
                            right: parent.right
                            top: view.isVertical ? title.bottom : undefined
                            bottom: view.isVertical ? undefined : parent.bottom
                        }
                        height: view.ink.line
                        ink: view.ink
                        text: hour.row.value
                        font.weight: Font.Medium
                        horizontalAlignment: view.isVertical ? Text.AlignRight : Text.AlignHCenter
                    }
                }
            }
        }
    }
}
