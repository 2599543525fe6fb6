import QtQuick
import Fendrel.Types

// What the menus of the dock offer, and what is done with the choice.
QtObject {
    id: menus

    required property DockMenu popup
    required property ReminderField reminder
    required property DockPanel panel
    required property DockController dock
    required property FocusController focusState
    required property VerdictController verdict

    // Another menu is right when its application starts or ends.
    readonly property Connections life: Connections {
        target: menus.popup.owner as AppButton
        function onIsRunningChanged() { menus.popup.dismiss() }
    }

    // What is chosen often brings something else to the front, which is to have the keyboard.
    function open(item: Item, entries: var, chosen: var) {
        openAt(item, item.mapToItem(null, 0, 0, item.width, item.height), entries, chosen)
    }
    function openAt(item: Item, spot: rect, entries: var, chosen: var) {
        popup.open(panel, item, spot, entries, value => {
            panel.releaseKeyboard()
            chosen(value)
        })
    }

    function correct(item: Item) {
        const entries = [{ header: qsTr("%1 belongs to").arg(verdict.what) },
                         ...main.allModes.map(mode => ({ text: mode.name, value: mode.modeID, symbol: mode.symbol, tint: mode.tint,
                                                              isChecked: mode.modeID === verdict.modeID })),
                         { separator: true },
                         { text: qsTr("None of them"), value: "", symbol: "xmark", isChecked: verdict.modeID === "" }]
        verdict.holdSubject()
        open(item, entries, modeID => verdict.correct(modeID))
    }

    readonly property MainMenu main: MainMenu {
        dock: menus.dock
        focusState: menus.focusState
    }

    function chooseFocus(item: Item) {
        offer(item, [...focusState.isOn ? [] : [{ header: qsTr("Focus on %1").arg(dock.modeName) }], ...main.focus()])
    }

    // Entries whose values are what is done when they are chosen.
    function offer(item: Item, entries: var) {
        open(item, entries, run => run())
    }
    function showAppMenu(item: Item, bundleID: string, name: string, isRunning: bool, isInMode: bool) {
        const actions = dock.actions
        const entry = window => ({ text: window.title === "" ? name : window.title, value: () => actions.raiseWindow(window.id),
                                   isChecked: window.isFront, isQuiet: window.isMinimized })
        const windows = actions.windows(bundleID).sort((one, other) => one.id - other.id)
        const own = actions.actions(bundleID)
        const hasNewWindow = own.some(action => action.id.replace("-", "").toLowerCase() === "newwindow")
        const start = isRunning ? [] : [{ text: qsTr("Open"), value: () => actions.open(bundleID), symbol: "arrow.right" }]
        const another = isRunning && !hasNewWindow ? [{ text: qsTr("New Window"), value: () => actions.openWindow(bundleID), symbol: "plus" }] : []
        const hiding = isRunning ? [{ text: qsTr("Hide"), value: () => actions.hide(bundleID), symbol: "eye.slash" },
                                    { text: qsTr("Hide Others"), value: () => actions.hideOthers(bundleID), symbol: "square.on.square.dashed" },
                                    { text: qsTr("Show All Windows"), value: () => actions.showAllWindows(bundleID), symbol: "square.grid.2x2" }] : []
        const ending = isRunning ? [{ text: qsTr("Quit"), value: () => actions.quit(bundleID), symbol: "stop" },
                                    { text: qsTr("Force Quit"), value: () => actions.forceQuit(bundleID), symbol: "bolt", isGrave: true }] : []
        offer(item, [{ header: name },
                     ...main.parted(windows.filter(window => !window.isMinimized).map(entry),
                               windows.filter(window => window.isMinimized).map(entry),
                               [...start, ...another, ...own.map(action => ({ text: action.name, value: () => actions.runAction(bundleID, action.id) }))],
                               membership(bundleID, isInMode), hiding,
                               [{ text: qsTr("Show in File Manager"), value: () => actions.reveal(bundleID), symbol: "folder" }],
                               ending)])
    }

    // Which modes the application belongs to, and what can be changed about that.
    function membership(bundleID: string, isInMode: bool): var {
        const actions = dock.actions
        const modes = actions.modes(bundleID)
        const entry = (mode, run) => ({ text: mode.name, symbol: mode.symbol, tint: mode.tint, value: run })
        const add = modes.filter(mode => !mode.hasApp).map(mode => entry(mode, () => actions.add(bundleID, mode.id)))
        const move = modes.filter(mode => mode.id !== dock.modeID).map(mode => entry(mode, () => actions.move(bundleID, dock.modeID, mode.id)))
        return [...add.length > 0 ? [{ text: qsTr("Add to"), symbol: "square.stack", page: add }] : [],
                ...isInMode && move.length > 0 ? [{ text: qsTr("Move to"), symbol: "arrow.left.arrow.right", page: move }] : [],
                ...isInMode ? [{ text: qsTr("Remove from %1").arg(dock.modeName), symbol: "xmark", value: () => actions.remove(bundleID, dock.modeID) }] : []]
    }

    function showModeMenu(item: Item, modeID: string, name: string, isCurrent: bool, heldCount: int) {
        const isByKeyboard = panel.hasKeyboard
        const budget = dock.budgetUsed(modeID)
        const change = isCurrent ? [] : [{ text: qsTr("Switch to %1").arg(name), value: () => dock.requestMode(modeID), symbol: "arrow.right" }]
        const held = heldCount === 0 ? [] : [{ text: qsTr("Held Messages (%1)…").arg(heldCount), value: () => dock.showHeld(modeID, isByKeyboard), symbol: "bell.badge" }]
        offer(item, [{ header: name },
                     ...main.parted(budget === "" ? [] : [{ text: budget, symbol: "hourglass" }], [...change, ...held],
                               [{ text: qsTr("Edit Mode…"), value: () => dock.editMode(modeID), symbol: "pencil" },
                                ...isCurrent ? widgets.adding() : [],
                                { text: qsTr("Dock"), page: dockEntries(), symbol: "dock.rectangle" },
                                { text: qsTr("Settings…"), value: () => dock.openSettings("general"), symbol: "gearshape" }])])
    }

    readonly property WidgetMenu widgets: WidgetMenu {
        dock: menus.dock
        main: menus.main
        onAdditionAsked: tile => menus.addReminder(tile)
    }
    function showWidgetMenu(tile: WidgetTile, size: string, sizes: var) {
        offer(tile, widgets.entries(tile, size, sizes))
    }

    function addReminder(tile: WidgetTile) {
        reminder.open(panel, tile)
    }

    function showWindowMenu(item: Item, window: real, title: string) {
        offer(item, [{ header: title }, { text: qsTr("Restore"), value: () => dock.actions.raiseWindow(window), symbol: "arrow.uturn.backward" },
                     { text: qsTr("Close"), value: () => dock.actions.closeWindow(window), symbol: "xmark" }])
    }

    function showTrashMenu(item: Item) {
        const empty = dock.trash.isEmpty ? [] : [{ text: qsTr("Empty Trash…"), value: () => dock.trash.askToEmpty(), isGrave: true, symbol: "trash" }]
        offer(item, [{ header: qsTr("Trash") }, { text: qsTr("Open"), value: () => dock.trash.open(), symbol: "folder" }, ...empty])
    }

    // Where it is asked for.
    function showDockMenu(item: Item) {
        const spot = panel.pointer()
        openAt(item, Qt.rect(spot.x, spot.y, 0, 0), mainEntries(), run => run())
    }
    function showMainMenu(item: Item) {
        offer(item, mainEntries())
    }
    // As the status icon has it, which not every desktop has a place for.
    function mainEntries(): var {
        return [{ text: qsTr("Dock"), page: dockEntries(), symbol: "dock.rectangle" }, ...widgets.adding(), { separator: true }, ...main.entries(panel.hasKeyboard)]
    }
    function dockEntries(): var {
        const settings = dock.preferences
        const choice = (property, names) => names.map((text, index) => ({ text: text, isChecked: settings[property] === index, value: () => settings[property] = index }))
        const flag = (property, text) => ({ text: text, isChecked: settings[property], value: () => settings[property] = !settings[property] })
        const name = dock.systemDock
        const replace = name === "" ? [] : [{ text: qsTr("Replace %1").arg(name), isChecked: dock.replacesDock, value: () => dock.replaceDock(!dock.replacesDock) }]
        return main.parted([{ text: qsTr("Position"), page: choice("dockPosition", [qsTr("Bottom"), qsTr("Left"), qsTr("Right")]) },
                       { text: qsTr("Size"), page: choice("dockSize", [qsTr("Small"), qsTr("Medium"), qsTr("Large")]) }],
                      [flag("autoHide", qsTr("Hide Automatically")), flag("magnify", qsTr("Magnify Icons")), ...replace],
                      [{ text: qsTr("Dock Settings…"), value: () => dock.openSettings("dock"), symbol: "gearshape" }])
    }
}
