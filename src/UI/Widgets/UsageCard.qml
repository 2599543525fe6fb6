import QtQuick
import Fendrel.Types

// What was used today, how that came about, and how far the window is that it counts in.
Item {
    id: view

    required property CardColors ink
    required property var content
    required property string symbol
    required property string size
    required property bool isVertical
    required property int padding // around it, into which the curve's area goes
    required property int side
    required property int radius

    readonly property bool isLarge: size === "large"
    readonly property bool isTight: !isVertical && height < 2 * ink.line + 10 // the gauge goes into the padding
    readonly property real share: isVertical || !isLarge ? width : Math.round(Math.min(Math.max(face.wanted + measured(content.unit) + 8, measured(gauging.parts) + 2), width * 0.55))

    // Number and caption are in one line where they lie beside one another.
    CardFace {
        id: face
        anchors { left: parent.left; top: parent.top }
        width: view.share
        height: view.isVertical ? Math.min(parent.height, view.width) : parent.height - gauging.height - (view.isTight ? 0 : 2)
        ink: view.ink
        content: view.content
        symbol: view.symbol
        isBrief: view.isVertical
        isBeside: !view.isVertical
        isCaptioned: false
    }
    CardLabel {
        anchors { left: face.left; leftMargin: face.wanted + 4; right: face.right; rightMargin: mark.visible ? 14 : 0; bottom: face.bottom; bottomMargin: Math.max(0, (face.height - height) / 2 - 2) }
        visible: !view.isVertical && width >= view.measured(view.content.unit)
        height: view.ink.line
        ink: view.ink
        color: view.ink.quiet
        text: view.measured(view.content.caption) <= width ? view.content.caption : view.content.unit
    }
    // It is the height that tells bindings of another font.
    function measured(text: string): real { return metrics.height > 0 ? Math.ceil(metrics.advanceWidth(text)) : 0 }
    FontMetrics {
        id: metrics
        font { family: said.font.family; pixelSize: view.ink.textSize }
    }
    CardMark {
        id: mark
        anchors { left: parent.left; leftMargin: view.share - width; top: parent.top }
        isWanted: !view.isVertical
        ink: view.ink
        content: view.content
    }

    Item {
        id: gauging
        readonly property var few: view.content.gaugeParts
        readonly property string parts: few[0] + " · " + few[1] + " " + few[2]
        readonly property string whole: view.content.gaugeText + " · " + view.content.gaugeNote
        anchors { left: parent.left; top: face.bottom; topMargin: view.isVertical ? 4 : view.isTight ? 0 : 2 }
        width: view.share
        height: said.height + (view.isTight ? 1 : 6)

        CardLabel {
            id: said
            anchors { left: parent.left; right: parent.right; rightMargin: view.isVertical ? -4 : 0; top: parent.top }
            height: view.ink.line
            ink: view.ink
            color: view.ink.quiet
            text: view.isVertical ? gauging.few[2]
                                  : view.measured(gauging.whole) <= width ? gauging.whole
                                  : view.measured(gauging.parts) * 0.85 <= width ? gauging.parts : gauging.few[0] + " " + gauging.few[2]
            fontSizeMode: Text.HorizontalFit
        }
        CardGauge {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: view.isTight ? -4 : 0 }
            ink: view.ink
            share: view.content.gauge
        }
    }

    CardRows {
        id: rows
        readonly property real room: view.isVertical ? view.height - y : view.height
        anchors {
            left: parent.left
            leftMargin: view.isVertical ? 0 : view.share + 14
            right: parent.right
            top: view.isVertical ? gauging.bottom : parent.top
            topMargin: view.isVertical ? 6 : 0
        }
        // Below them there is still a curve.
        readonly property int count: view.isVertical ? Math.max(2, Math.floor((room - 0.7 * view.width) / entryHeight)) : 2
        height: Math.min(count, view.content.rows.length) * entryHeight
        visible: view.isLarge
        ink: view.ink
        rows: view.content.rows
        isNarrow: view.isVertical
        hasValues: true
    }
    // Below the rest, down to the card's edge, and no higher than wide.
    CurvePicture {
        readonly property real above: view.isLarge ? rows.y + rows.height : gauging.y + gauging.height
        anchors {
            left: parent.left
            leftMargin: view.isVertical ? 1 - view.side : view.share + 14
            right: parent.right
            rightMargin: 1 - view.side
            top: view.isVertical && !view.isLarge ? gauging.bottom : rows.bottom
            topMargin: Math.max(4, view.isVertical ? view.height + view.padding - 1 - view.width - above : 0)
            bottom: parent.bottom
            bottomMargin: 1 - view.padding
        }
        visible: (view.isLarge || view.isVertical) && height >= 6
        inset: 3
        radius: view.radius - 1
        points: view.content.curve
        now: view.content.curveNow
        isMarked: true
        color: view.ink.mark
    }
}
