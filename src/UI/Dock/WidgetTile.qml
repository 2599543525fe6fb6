import QtQuick
import Fendrel.Style
import Fendrel.Widgets

// The card of a widget in the dock. Pressed, it opens what it shows.
DockItem {
    id: tile

    required property string widgetID
    required property string title
    required property string shortTitle
    required property string symbol
    required property color accent
    required property var content // cardContent
    required property string pressText // what a press does
    required property bool isCarried

    required property string fittingSize // its own, or a smaller one where there is little room
    required property real extent // pixels across the bar
    property bool isMoving: true
    property var ticked: [] // identifiers of what is ticked off
    property real share: 1 // 0 to 1, of it that is in sight

    property real coming // 0 to 1, while it appears
    NumberAnimation on coming { from: 0; to: 1; duration: Theme.normal; easing.type: Easing.OutCubic }
    opacity: coming * share * (isCarried ? 0.25 : 1)

    readonly property bool takesAdditions: content.form === "tasks" && (isReady || content.state === "empty")

    signal rowPressed(address: url)
    signal toggled(task: string, on: bool)
    signal additionAsked()
    signal moveAsked(step: int)

    implicitWidth: card.implicitWidth
    implicitHeight: card.implicitHeight
    width: implicitWidth
    height: implicitHeight
    Behavior on width { enabled: tile.isMoving && !tile.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
    Behavior on height { enabled: tile.isMoving && tile.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }

    function said(...parts): var { return parts.filter(part => part !== "") }
    // What may be cut at the end matters least.
    tipText: said(title, isReady ? "" : content.headline, content.problem, content.age, content.source, content.note,
                  isReady ? "" : pressText).join(" · ")
    readonly property bool isReady: content.state === "ready"

    Accessible.role: Accessible.Button
    Accessible.name: said(title, content.headline, content.caption, content.note, content.gaugeText, content.gaugeNote, content.problem, content.age).join(", ")
    Accessible.description: pressText

    Keys.onPressed: event => {
        const forward = event.key === (isVertical ? Qt.Key_Down : Qt.Key_Right)
        const backward = event.key === (isVertical ? Qt.Key_Up : Qt.Key_Left)
        event.accepted = (event.modifiers & Qt.AltModifier) && (forward || backward)
        if (event.accepted)
            moveAsked(forward ? 1 : -1)
    }

    WidgetCard {
        id: card
        anchors.fill: parent
        colors: tile.colors
        content: tile.content
        title: tile.title
        shortTitle: tile.shortTitle
        symbol: tile.symbol
        accent: tile.accent
        size: tile.fittingSize
        isVertical: tile.isVertical
        extent: tile.extent
        ticked: tile.ticked
        isPressed: tile.isPressed
        isHovered: tile.isHovered
        onRowPressed: address => tile.rowPressed(address)
        onToggled: (task, on) => tile.toggled(task, on)
        onAdditionAsked: tile.additionAsked()
    }
}
