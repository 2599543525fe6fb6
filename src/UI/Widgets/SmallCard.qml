import QtQuick

// A number and its symbol, and what else has room in the smallest card.
Item {
    id: view

    required property CardColors ink
    required property var content
    required property string symbol

    signal pressed(address: url)

    readonly property bool canJoin: content.form === "event" && content.join.toString() !== "" && content.tone !== "neutral" // it is time to
    readonly property bool hasGauge: content.gauge >= 0

    CardFace {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: parent.height - (view.hasGauge ? gauge.height + 2 : 0)
        visible: !view.canJoin
        ink: view.ink
        content: view.content
        symbol: view.symbol
        isBrief: true
        lead: view.content.form === "quotes" ? view.content.caption : ""
    }
    CardGauge {
        id: gauge
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        visible: view.hasGauge
        ink: view.ink
        share: Math.max(0, view.content.gauge)
    }
    CardLabel {
        anchors { left: parent.left; leftMargin: -4; right: parent.right; rightMargin: -4; top: parent.top; bottom: join.top }
        visible: view.canJoin
        ink: view.ink
        color: view.ink.tone(view.content.tone)
        text: view.content.brief
        font { weight: Font.DemiBold; pixelSize: Math.round(view.ink.textSize * 1.3) }
        fontSizeMode: Text.HorizontalFit
        horizontalAlignment: Text.AlignHCenter
    }
    CardButton {
        id: join
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        visible: view.canJoin
        ink: view.ink
        text: qsTr("Join")
        symbol: "video"
        name: qsTr("Join %1").arg(view.content.headline)
        onPressed: view.pressed(view.content.join)
    }
}
