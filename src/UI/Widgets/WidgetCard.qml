import QtQuick
import Fendrel.Style
import Fendrel.Types

// The card of a widget, whatever service it is from.
Item {
    id: card

    required property Colors colors
    required property var content // cardContent
    required property string title
    required property string shortTitle
    required property string symbol
    required property color accent
    required property string size // "small", "medium", "large"
    required property bool isVertical
    required property real extent // pixels across the bar
    property var ticked: [] // identifiers of what is ticked off
    property bool isPressed: false
    property bool isHovered: false

    signal rowPressed(address: url)
    signal toggled(task: string, on: bool)
    signal additionAsked()

    readonly property real fullLength: metrics.length(size, extent, isVertical)
    implicitWidth: isVertical ? extent : fullLength
    implicitHeight: isVertical ? fullLength : extent

    readonly property string shownSymbol: content.symbol !== "" ? content.symbol : symbol
    readonly property Component view: {
        if (content.state !== "ready")
            return message
        if (size === "small")
            return small
        switch (content.form) {
        case "curve": return curve
        case "hours": return hours
        case "usage": return usage
        case "event": return event
        case "quotes": return content.rows.length > 1 ? quotes : curve
        }
        return list
    }

    // What is new comes gently; an age that goes on is not new.
    readonly property string news: content.form === "tasks" ? content.state // its lines come by themselves
        : [content.state, content.headline, content.form === "event" ? "" : content.caption].join("\n")
    onNewsChanged: if (isThere) coming.restart()
    property bool isThere: false
    Component.onCompleted: isThere = true
    NumberAnimation {
        id: coming
        target: body
        property: "opacity"
        from: 0.3
        to: 1
        duration: Theme.slow
        easing.type: Easing.OutCubic
    }

    CardMetrics { id: metrics }
    CardColors {
        id: inks
        colors: card.colors
        accent: card.accent
        textSize: metrics.textSize(card.extent, card.isVertical)
        leastTextSize: metrics.leastTextSize
    }

    Item {
        id: plate
        anchors.fill: parent
        scale: card.isPressed ? 0.98 : 1
        Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }

        CardSurface {
            anchors.fill: parent
            upper: inks.top
            lower: inks.bottom
            line: inks.edge
            radius: metrics.radius(card.extent)
        }
        Rectangle {
            anchors.fill: parent
            radius: metrics.radius(card.extent)
            color: inks.text
            opacity: card.isPressed ? 0.1 : card.isHovered ? 0.045 : 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }

        Loader {
            id: body
            anchors.fill: parent
            readonly property int padding: metrics.padding(card.extent)
            readonly property int side: padding + (card.size === "small" || card.isVertical ? 0 : 3)
            anchors { topMargin: padding; bottomMargin: padding; leftMargin: side; rightMargin: side }
            sourceComponent: card.view
        }
    }

    Component {
        id: message
        CardMessage {
            ink: inks
            content: card.content
            title: card.title
            shortTitle: card.shortTitle
            symbol: card.shownSymbol
            isSmall: card.size === "small"
            isStacked: card.isVertical
        }
    }
    Component {
        id: small
        SmallCard {
            ink: inks
            content: card.content
            symbol: card.shownSymbol
            onPressed: address => card.rowPressed(address)
        }
    }
    Component {
        id: list
        ListCard {
            ink: inks
            content: card.content
            symbol: card.shownSymbol
            size: card.size
            isVertical: card.isVertical
            ticked: card.ticked
            onPressed: address => card.rowPressed(address)
            onToggled: (task, on) => card.toggled(task, on)
            onAdditionAsked: card.additionAsked()
        }
    }
    Component {
        id: event
        EventCard {
            ink: inks
            content: card.content
            size: card.size
            isVertical: card.isVertical
            onPressed: address => card.rowPressed(address)
        }
    }
    Component {
        id: usage
        UsageCard {
            ink: inks
            content: card.content
            symbol: card.shownSymbol
            size: card.size
            isVertical: card.isVertical
            padding: body.padding
            side: body.side
            radius: metrics.radius(card.extent)
        }
    }
    Component {
        id: curve
        CurveCard {
            ink: inks
            content: card.content
            symbol: card.shownSymbol
            size: card.size
            isVertical: card.isVertical
            padding: body.padding
            side: body.side
            radius: metrics.radius(card.extent)
            onPressed: address => card.rowPressed(address)
        }
    }
    Component {
        id: hours
        HoursCard {
            ink: inks
            content: card.content
            symbol: card.shownSymbol
            size: card.size
            isVertical: card.isVertical
        }
    }
    Component {
        id: quotes
        QuotesCard {
            ink: inks
            content: card.content
            isVertical: card.isVertical
            onPressed: address => card.rowPressed(address)
        }
    }
}
