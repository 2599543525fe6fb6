import QtQuick

// The next event, the way into its call, and what else the day has.
Item {
    id: view

    required property CardColors ink
    required property var content
    required property string size
    required property bool isVertical

    signal pressed(address: url)

    readonly property bool hasRows: size === "large" && content.rows.length > 0
    readonly property bool canJoin: content.join.toString() !== ""
    readonly property real share: isVertical || !hasRows ? width : Math.round(width * 0.5) - 7
    readonly property real most: isVertical && hasRows ? Math.min(height, 2.4 * (width + 14)) : height // for the next one
    readonly property real nextHeight: isVertical && hasRows ? Math.min(most, time.height + title.contentHeight + (canJoin ? join.height + 4 : 0) + 4) : height
    readonly property color timeColor: content.tone === "neutral" ? ink.quiet : ink.tone(content.tone)

    Rectangle {
        id: bar
        anchors { left: parent.left; top: parent.top }
        width: 3
        height: view.nextHeight
        radius: 1.5
        color: view.content.tone === "neutral" ? view.ink.mark : view.ink.dots[view.content.tone]
        visible: !view.isVertical
    }
    CardMark {
        id: mark
        anchors { left: parent.left; leftMargin: view.share - width; top: parent.top }
        isWanted: view.content.problem !== ""
        ink: view.ink
        content: view.content
    }
    // As many lines as are left of title and room.
    CardLabel {
        id: title
        readonly property int room: Math.max(1, Math.floor((view.most - time.height - (view.isVertical ? join.height + 4 : 0) + 2) / view.ink.line))
        anchors { left: parent.left; leftMargin: view.isVertical ? 0 : 9; top: view.isVertical ? time.bottom : parent.top }
        width: view.share - anchors.leftMargin - (mark.visible ? mark.width + 4 : 0)
        ink: view.ink
        text: view.content.headline
        font.weight: Font.DemiBold
        wrapMode: view.isVertical ? Text.WordWrap : Text.Wrap
        fontSizeMode: view.isVertical ? Text.HorizontalFit : Text.FixedSize
        maximumLineCount: room
        verticalAlignment: Text.AlignTop
    }
    CardLabel {
        anchors { left: title.left; right: title.right; top: title.bottom }
        height: view.ink.line
        visible: !view.isVertical && title.lineCount < title.room && text !== ""
        ink: view.ink
        color: view.ink.quiet
        text: view.content.note
    }
    CardLabel {
        id: time
        anchors { left: title.left; top: parent.top; topMargin: view.isVertical ? 0 : view.nextHeight - height }
        width: view.isVertical ? view.width + 4 : view.share - 9 - (join.visible ? join.width + 6 : 0)
        height: view.isVertical ? Math.round(1.5 * view.ink.line) : view.ink.line
        ink: view.ink
        color: view.isVertical && view.content.tone === "neutral" ? view.ink.mark : view.timeColor
        text: view.isVertical || metrics.advanceWidth(view.content.caption) > width ? view.content.brief : view.content.caption
        font { weight: view.isVertical ? Font.DemiBold : Font.Medium; pixelSize: view.isVertical ? Math.round(view.ink.textSize * 1.3) : view.ink.textSize }
        fontSizeMode: Text.HorizontalFit
        verticalAlignment: view.isVertical ? Text.AlignTop : Text.AlignVCenter
    }
    FontMetrics {
        id: metrics
        font { family: title.font.family; pixelSize: view.ink.textSize; weight: Font.Medium }
    }
    CardButton {
        id: join
        anchors { left: parent.left; leftMargin: view.isVertical ? 0 : view.share - width; top: parent.top; topMargin: view.nextHeight - height + (view.isVertical ? 0 : 3) }
        width: visible ? view.isVertical ? view.width : Math.min(implicitWidth, view.share * 0.5) : 0
        height: visible ? implicitHeight : 0
        visible: view.canJoin
        ink: view.ink
        text: qsTr("Join")
        symbol: "video"
        name: qsTr("Join %1").arg(view.content.headline)
        onPressed: view.pressed(view.content.join)
    }
    Rectangle {
        anchors { left: parent.left; leftMargin: view.isVertical ? 0 : view.share + 7; top: parent.top; topMargin: view.isVertical ? view.nextHeight + 5 : 0 }
        visible: view.hasRows
        width: view.isVertical ? view.width : 1
        height: view.isVertical ? 1 : view.height
        color: view.ink.text
        opacity: 0.12
    }
    CardRows {
        anchors {
            left: parent.left
            leftMargin: view.isVertical ? 0 : view.share + 15
            right: parent.right
            top: parent.top
            topMargin: view.isVertical ? view.nextHeight + 10 : 0
            bottom: parent.bottom
        }
        visible: view.hasRows
        ink: view.ink
        rows: view.content.rows
        isNarrow: view.isVertical
        hasValues: true
        onPressed: address => view.pressed(address)
    }
}
