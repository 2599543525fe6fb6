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
    readonly property real share: isVertical || !isLarge ? width : Math.round(Math.min(Math.max(face.wanted + measured(content.unit) + 8, measured(content.gaugeText) + 2), width * 0.55))

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
        readonly property string whole: view.content.gaugeText + " · " + view.content.gaugeNote
        readonly property bool fitsWhole: view.measured(whole) <= width
        anchors { left: parent.left; top: face.bottom; topMargin: view.isVertical ? 4 : view.isTight ? 0 : 2 }
        width: view.share
        height: said.height + (view.isTight ? 1 : 6)

        CardLabel {
            id: said
            anchors { left: parent.left; right: parent.right; top: parent.top }
            height: view.isVertical ? implicitHeight : view.ink.line
            ink: view.ink
            color: view.ink.quiet
            text: gauging.fitsWhole ? gauging.whole : view.content.gaugeText
            wrapMode: view.isVertical ? Text.Wrap : Text.NoWrap
            maximumLineCount: view.isVertical ? 3 : 1
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
        height: Math.min(2, view.content.rows.length) * entryHeight
        visible: view.isLarge
        ink: view.ink
        rows: view.content.rows
        isNarrow: view.isVertical
        hasValues: true
    }
    // Below the rest, down to the card's edge.
    CurvePicture {
        anchors {
            left: parent.left
            leftMargin: view.isVertical ? 1 - view.side : rows.x
            right: parent.right
            rightMargin: 1 - view.side
            top: view.isVertical && !view.isLarge ? gauging.bottom : rows.bottom
            topMargin: 4
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
