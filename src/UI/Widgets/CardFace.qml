import QtQuick
import Fendrel.Style

// What a card says first: a number, what it is of, and how that stands.
Item {
    id: face

    required property CardColors ink
    required property var content
    required property string symbol
    property bool isBrief: false      // there is only room for a few characters
    property bool isBeside: false     // the symbol stands before the number, else above it
    property bool isCaptioned: !isBrief
    property bool wraps: false        // it is narrow, and has room below
    property string lead: ""          // in the symbol's place
    property bool isCornerTaken: false // by something that can be pressed
    property bool needsCredit: false  // rather than all of the caption
    property real captionRoom: width  // pixels

    readonly property real wantedCaption: captionStart + (needsCredit ? caption.creditedWidth : caption.leastWidth) // pixels
    readonly property real wanted: Math.ceil(Math.max(numberStart + full.advanceWidth * most / 100, wantedCaption)) + 2
    readonly property real symbolSize: isBeside ? Math.min(20, Math.round((height - caption.height) * 0.75)) : Math.min(18, Math.round(height * 0.38))
    readonly property bool hasCaption: isCaptioned && height >= 1.9 * ink.line
    readonly property real captionWidth: hasCaption ? Math.min(captionStart + caption.contentWidth, captionRoom) : 0
    readonly property bool isMarkBelow: (isBeside || isCornerTaken) && hasCaption // with the caption, and the number keeps its room
    readonly property real captionStart: lowMark.visible ? lowMark.width + 5 : 0
    readonly property bool hasNote: hasCaption && !wraps && height >= 4.4 * ink.line && content.note !== ""
    readonly property real numberStart: isBeside ? symbolSize + 6 : 0
    readonly property real most: Math.min(isBeside ? Theme.title : Theme.headline, headline.height * 0.84) // as large as the height allows

    Symbol {
        id: symbol
        anchors {
            left: parent.left
            top: parent.top
            topMargin: face.isBeside ? Math.max(0, (headline.height - height) / 2) : 0
        }
        visible: face.lead === "" || face.isBeside
        name: face.symbol
        size: face.symbolSize
        color: face.ink.mark
        opacity: face.content.isLoading ? 0.55 : 1
        Behavior on opacity { NumberAnimation { duration: Theme.normal } }
    }
    CardLabel {
        id: lead
        anchors { left: parent.left; right: mark.visible ? mark.left : parent.right; top: parent.top }
        visible: face.lead !== "" && !face.isBeside
        ink: face.ink
        text: face.lead
        color: face.ink.quiet
        opacity: face.content.isLoading ? 0.55 : 1
        Behavior on opacity { NumberAnimation { duration: Theme.normal } }
        font.weight: Font.DemiBold
        fontSizeMode: Text.HorizontalFit
    }
    CardMark {
        id: mark
        anchors { right: parent.right; top: parent.top }
        isWanted: !face.isMarkBelow
        ink: face.ink
        content: face.content
    }
    CardMark {
        id: lowMark
        anchors { left: parent.left; top: caption.top; topMargin: (face.ink.line - height) / 2 }
        isWanted: face.isMarkBelow
        ink: face.ink
        content: face.content
    }
    CardLabel {
        id: headline
        anchors {
            left: parent.left
            leftMargin: face.numberStart
            right: parent.right
            rightMargin: face.isBrief ? -4 : 0 // a little into the padding
            top: face.isBeside ? parent.top : face.lead === "" ? symbol.bottom : lead.bottom
            bottom: face.hasCaption ? caption.top : parent.bottom
        }
        readonly property real room: face.width - anchors.rightMargin - face.numberStart - (face.isBeside && mark.visible ? mark.width + 6 : 0)
        ink: face.ink
        text: face.isBrief && face.content.brief !== "" ? face.content.brief : face.content.headline
        color: face.lead !== "" && face.isBrief && face.content.tone !== "neutral" ? face.ink.tone(face.content.tone) : face.ink.text
        font { pixelSize: Math.max(face.ink.leastTextSize, Math.floor(Math.min(face.most, 96 * room / Math.max(1, full.advanceWidth)))); weight: Font.DemiBold }
        verticalAlignment: face.isBeside ? Text.AlignVCenter : Text.AlignBottom
    }
    TextMetrics {
        id: full
        text: headline.text
        font { family: headline.font.family; pixelSize: 100; weight: headline.font.weight }
    }
    CardCaption {
        id: caption
        anchors { left: parent.left; leftMargin: face.captionStart; bottom: face.hasNote ? note.top : parent.bottom }
        width: Math.max(0, Math.min(face.width, face.captionRoom) - face.captionStart)
        height: face.hasCaption ? (face.wraps ? 2 : 1) * face.ink.line : 0
        visible: face.hasCaption
        ink: face.ink
        content: face.content
        needsCredit: face.needsCredit
        wraps: face.wraps
    }
    CardLabel {
        id: note
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: face.hasNote ? face.ink.line : 0
        visible: face.hasNote
        ink: face.ink
        color: face.ink.quiet
        text: face.content.note
    }
}
