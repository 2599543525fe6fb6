import QtQuick
import Fendrel.Types

// A number, and how it came about in the course of the day.
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

    signal pressed(address: url)

    readonly property bool hasRows: size === "large" && content.rows.length > 0
    readonly property bool isQuote: content.form === "quotes"
    readonly property real share: isVertical || !hasRows ? width : Math.min(Math.max(face.wanted, face.wantedCaption + 50) + 10, Math.round(width * 0.48))

    CardFace {
        id: face
        anchors { left: parent.left; top: parent.top }
        width: view.share - (view.share < parent.width ? 10 : 0)
        wraps: view.isVertical && view.content.age !== ""
        isCaptioned: !view.isVertical || view.content.age !== ""
        height: view.isVertical ? Math.min(parent.height, view.width + (wraps ? 2 : 1) * view.ink.line) : parent.height
        ink: view.ink
        content: view.content
        symbol: view.symbol
        lead: view.isQuote ? view.content.caption : ""
        captionRoom: view.isVertical ? width : Math.max(wantedCaption, Math.round(width * 0.58))
        isBrief: view.isVertical
        isBeside: !view.isVertical
    }

    // Beside the caption and under the number, down to the card's edge.
    CurvePicture {
        id: curve
        visible: width >= 24 && height >= 4
        anchors {
            left: parent.left
            leftMargin: view.isVertical ? 1 - view.side : face.captionWidth + 10
            top: view.isVertical ? face.bottom : parent.top
            topMargin: view.isVertical ? 4 : Math.round(view.height * 0.58)
        }
        width: (view.isVertical || !view.hasRows ? view.width + view.side - 1 : view.share) - anchors.leftMargin
        height: view.isVertical ? (view.hasRows ? Math.round(view.width * 0.8) : view.height - face.height - 5 + view.padding)
                                : view.height + view.padding - 1 - anchors.topMargin
        inset: view.isVertical ? view.side - 1 : 3
        radius: view.hasRows ? 0 : view.radius - 1
        points: view.content.curve
        now: view.content.curveNow
        isMarked: true
        color: view.isQuote && view.content.tone !== "neutral" ? view.ink.tone(view.content.tone) : view.ink.mark
    }

    CardLabel {
        id: credit
        anchors { left: rows.left; right: rows.right; bottom: parent.bottom }
        height: visible ? (view.isVertical ? 3 : 1) * view.ink.line : 0
        visible: view.hasRows && text !== ""
        ink: view.ink
        color: view.ink.quiet
        text: view.content.credit
        wrapMode: view.isVertical ? Text.Wrap : Text.NoWrap
        fontSizeMode: Text.HorizontalFit
        verticalAlignment: Text.AlignBottom
    }
    CardRows {
        id: rows
        anchors {
            left: parent.left
            leftMargin: view.isVertical ? 0 : view.share + 12
            right: parent.right
            top: view.isVertical ? curve.bottom : parent.top
            topMargin: view.isVertical ? 6 : 0
            bottom: credit.top
        }
        visible: view.hasRows
        ink: view.ink
        rows: view.content.rows
        isNarrow: width < 8 * view.ink.textSize
        hasValues: true
        onPressed: address => view.pressed(address)
    }
}
