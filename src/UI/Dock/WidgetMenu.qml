import QtQml
import Fendrel.Types

// What the menus of the dock offer for widgets, as entries of a DockMenu. The value of an entry is what is done when it
// is chosen.
QtObject {
    id: menu

    required property DockController dock
    required property MainMenu main
    readonly property WidgetActions actions: dock.widgetActions

    signal additionAsked(tile: WidgetTile)

    function entries(tile: WidgetTile, size: string, sizes: var): var {
        const id = tile.widgetID
        const content = tile.content
        return [{ header: tile.title },
                ...main.parted(standing(content), joining(content), content.rows.map(row => line(row)), completing(tile),
                               [...opening(id, content),
                                ...content.isLoading ? [] : [{ text: qsTr("Refresh"), value: () => menu.actions.refresh(id), symbol: "arrow.clockwise" }]],
                               [...resizing(id, size, sizes), ...moving(id, tile.isVertical),
                                { text: qsTr("Remove from %1").arg(dock.modeName), value: () => menu.actions.remove(id), symbol: "xmark" }],
                               [...adding(), { text: qsTr("Widget Settings…"), value: () => menu.dock.openSettings("widgets"), symbol: "gearshape" }])]
    }

    // How it stands, as far as the header and the rows don't say it.
    function standing(content: var): var {
        const lead = content.unit === "" ? [content.headline, content.caption] : [content.headline + " " + content.caption] // "3 reviews"
        const said = spoken(...lead, content.note)
        const now = content.state === "ready" && said.length > 0 ? [said.join(" · ")] : said // sentences have a line each
        const credit = content.source === "" ? []
            : actions.isOpenable(content.sourceAddress) ? [{ text: content.source, value: () => menu.actions.open(content.sourceAddress), symbol: "info.circle" }]
            : [{ text: content.source, symbol: "info.circle" }]
        return [...now.map(text => ({ text: text })),
                ...content.gaugeText === "" ? [] : [{ text: spoken(content.gaugeText, content.gaugeNote).join(" · "), symbol: "hourglass" }],
                ...content.problem === "" ? [] : [{ text: content.problem, symbol: "exclamationmark.triangle" }],
                ...content.age === "" ? [] : [{ text: content.age, symbol: "clock" }],
                ...credit]
    }
    function joining(content: var): var {
        return actions.isOpenable(content.join) ? [{ text: qsTr("Join %1").arg(content.headline), value: () => menu.actions.open(content.join), symbol: "video" }] : []
    }
    // Lines of reminders say what is to be done; here it can be.
    function completing(tile: WidgetTile): var {
        const tasks = tile.content.rows.filter(row => row.id !== "").map(row => ({ text: row.title, hint: row.value, value: () => menu.actions.complete(row.id) }))
        return [...tasks.length === 0 ? [] : [{ text: qsTr("Complete"), page: tasks, symbol: "checkmark" }],
                ...tile.takesAdditions ? [{ text: qsTr("Add a Reminder…"), value: () => menu.additionAsked(tile), symbol: "plus" }] : []]
    }
    function spoken(...texts): var { return texts.filter(text => text !== "") }
    function line(row: var): var {
        const entry = { text: row.title, hint: spoken(row.detail, row.value).join(" · "), symbol: row.symbol }
        return actions.isOpenable(row.address) ? Object.assign(entry, { value: () => menu.actions.open(row.address) }) : entry
    }
    function opening(id: string, content: var): var {
        return actions.isOpenable(content.address) ? [{ text: qsTr("Open in Browser"), value: () => menu.actions.press(id), symbol: "globe" }] : []
    }
    function resizing(id: string, size: string, sizes: var): var {
        const names = { small: qsTr("Small"), medium: qsTr("Medium"), large: qsTr("Large") }
        const page = sizes.map(each => ({ text: names[each], isChecked: each === size, value: () => menu.actions.resize(id, each) }))
        return sizes.length < 2 ? [] : [{ text: qsTr("Size"), page: page, symbol: "square.grid.2x2" }]
    }
    function moving(id: string, isVertical: bool): var {
        const order = Array.from(dock.widgets.order())
        const place = order.findIndex(each => each === id)
        const before = { text: isVertical ? qsTr("Move Up") : qsTr("Move Left"), value: () => menu.actions.move(id, -1) }
        const after = { text: isVertical ? qsTr("Move Down") : qsTr("Move Right"), value: () => menu.actions.move(id, 1) }
        return [...place > 0 ? [before] : [], ...place < order.length - 1 ? [after] : []]
    }

    // What can be placed, by category.
    function adding(): var {
        const kinds = category => category.kinds.map(kind => ({ text: kind.title, symbol: kind.symbol, tint: kind.tint,
                                                                value: () => menu.actions.add(kind.widgetID) }))
        const page = dock.widgets.offers().map(category => ({ text: category.title, page: kinds(category) }))
        return page.length === 0 ? [] : [{ text: qsTr("Add Widget"), page: page, symbol: "plus" }]
    }
}
