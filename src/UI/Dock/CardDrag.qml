import QtQuick
import Fendrel.Types

// A card that is carried: it finds a place among the others, or leaves the dock.
QtObject {
    id: drag

    required property DockPanel panel
    required property DockController dock
    required property Item view // in whose coordinates the pointer is told
    required property Item bar
    required property int reach // pixels away from the bar, from which on a card leaves it

    property string widgetID: "" // empty: nothing is carried
    property int place: WidgetCardsModel.AtHome
    readonly property bool isActive: widgetID !== ""
    readonly property bool isLeaving: isActive && place === WidgetCardsModel.Nowhere

    function pickUp(widget: string) {
        widgetID = widget
        move(WidgetCardsModel.AtHome)
    }
    // `near`: the place among the others that is nearest.
    function moveTo(point: point, near: int) {
        if (!isActive)
            return
        const inBar = bar.mapFromItem(view, point)
        const away = Math.max(-inBar.x, inBar.x - bar.width, -inBar.y, inBar.y - bar.height)
        move(away <= reach ? near : panel.isOverOther(point, reach) ? WidgetCardsModel.AtHome : WidgetCardsModel.Nowhere)
    }
    function drop() {
        if (isLeaving) {
            const gone = widgetID
            end()
            dock.widgetActions.remove(gone)
        } else if (isActive) {
            dock.widgetActions.arrange(dock.widgets.order())
            end()
        }
    }
    function end() {
        widgetID = ""
        place = WidgetCardsModel.AtHome
        dock.widgets.letGo()
    }

    function move(wanted: int) {
        place = wanted
        dock.widgets.carry(widgetID, wanted)
    }
}
