import QtQml
import Fendrel.Types

// The menu of the whole program, as entries of a DockMenu: the status icon and the dock show the same. The value of an
// entry is what is done when it is chosen.
QtObject {
    id: menu

    required property DockController dock
    required property FocusController focusState

    readonly property var allModes: dock.modes.entries
    readonly property var allEnds: focusState.ends
    readonly property var allNotices: dock.notices.all
    readonly property var lengths: [25, 50, 90] // minutes

    function entries(isByKeyboard: bool): var {
        return parted(switching(), offered(), modes(), focus(), today(isByKeyboard),
                      [{ text: qsTr("Settings…"), value: () => menu.dock.openSettings("general"), symbol: "gearshape" },
                       { text: qsTr("Modes…"), value: () => menu.dock.editMode(menu.dock.modeID), symbol: "square.stack" }],
                      [{ text: qsTr("Quit Fendrel"), value: () => menu.dock.quit(), symbol: "power" }])
    }
    // One list out of several, with lines between those that are not empty.
    function parted(...parts): var {
        return parts.filter(part => part.length > 0).reduce((list, part) => list.length > 0 ? [...list, { separator: true }, ...part] : part, [])
    }

    function switching(): var {
        const target = allModes.find(mode => mode.isPending)
        return target === undefined ? []
            : [{ text: qsTr("Switching to %1 in %2 s").arg(target.name).arg(focusState.pendingSeconds), symbol: "hourglass" },
               { text: qsTr("Shorten the Wait"), value: () => menu.dock.requestMode(target.modeID), symbol: "bolt" },
               { text: qsTr("Stay in %1").arg(dock.modeName), value: () => menu.dock.requestMode(menu.dock.modeID), symbol: "xmark" }]
    }
    function offered(): var {
        return allNotices.filter(notice => notice.inMenu !== "")
            .map(notice => ({ text: notice.inMenu, hint: notice.detail, symbol: notice.symbol, tint: notice.tint, value: () => menu.dock.notices.accept(notice.kind) }))
    }
    function modes(): var {
        return allModes.map(mode => ({ text: mode.name, hint: mode.hotKey, symbol: mode.symbol, tint: mode.tint, isChecked: mode.isCurrent,
                                             value: () => menu.dock.requestMode(mode.modeID) }))
    }
    function focus(): var {
        const minutes = lengths.map(length => ({ text: qsTr("Focus for %1 Minutes").arg(length), value: () => menu.focusState.start(length), symbol: "timer" }))
        const ends = allEnds.map(end => ({ text: qsTr("Until %1").arg(end.text), value: () => menu.focusState.startUntil(end.value), symbol: "clock" }))
        const until = { text: qsTr("Focus Until"), page: ends, symbol: "clock" }
        if (!focusState.isOn)
            return [{ text: qsTr("Start Focus"), value: () => menu.focusState.start(0), symbol: "scope" }, ...minutes, until]
        const end = focusState.remaining === "" ? qsTr("End Focus") : qsTr("End Focus (%1 left)").arg(focusState.remaining)
        const again = [{ text: qsTr("Until I End It"), value: () => menu.focusState.start(0), symbol: "scope" }, ...minutes, ...ends]
        return [{ text: end, value: () => menu.focusState.stop(), symbol: "stop" }, { text: qsTr("Focus Longer"), page: again, symbol: "timer" }]
    }
    function today(isByKeyboard: bool): var {
        const holding = allModes.filter(mode => mode.heldCount > 0)
        const count = holding.reduce((sum, mode) => sum + mode.heldCount, 0)
        const show = mode => () => menu.dock.showHeld(mode.modeID, isByKeyboard)
        const held = holding.length === 0 ? []
            : holding.length === 1 ? [{ text: qsTr("Held Messages (%1)…").arg(count), value: show(holding[0]), symbol: "bell.badge" }]
            : [{ text: qsTr("Held Messages (%1)").arg(count), symbol: "bell.badge",
                 page: holding.map(mode => ({ text: qsTr("%1 (%2)…").arg(mode.name).arg(mode.heldCount), value: show(mode), symbol: mode.symbol, tint: mode.tint })) }]
        return [...focusState.hasBudget ? [{ text: focusState.driftText, symbol: "hourglass" }] : [], ...held]
    }
}
