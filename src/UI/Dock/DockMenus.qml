import QtQuick
import Fendrel.Types

// What the menus of the dock offer, and what is done with the choice.
QtObject {
    required property DockMenu popup
    required property DockPanel panel
    required property DockController dock
    required property FocusController focusState
    required property VerdictController verdict

    // What is chosen often brings something else to the front, which is to have the keyboard.
    function open(item: Item, entries: var, chosen: var) {
        popup.open(panel, item, entries, value => {
            panel.releaseKeyboard()
            chosen(value)
        })
    }

    function correct(item: Item) {
        const entries = [{ header: qsTr("%1 belongs to").arg(verdict.what) },
                         ...dock.modes.menuEntries(verdict.modeID),
                         { separator: true },
                         { text: qsTr("None of them"), value: "", symbol: "xmark", isChecked: verdict.modeID === "" }]
        verdict.holdSubject()
        open(item, entries, modeID => verdict.correct(modeID))
    }

    function chooseFocus(item: Item) {
        const durations = [{ text: qsTr("Until I end it"), value: 0, symbol: "scope" },
                           { text: qsTr("25 minutes"), value: 25, symbol: "timer" },
                           { text: qsTr("50 minutes"), value: 50, symbol: "timer" },
                           { text: qsTr("90 minutes"), value: 90, symbol: "timer" }]
        const entries = focusState.isOn
            ? [{ text: qsTr("End focus session"), value: -1, symbol: "stop" }, { separator: true }, { header: qsTr("Start again") }, ...durations]
            : [{ header: qsTr("Focus on %1").arg(dock.modeName) }, ...durations]
        open(item, entries, minutes => minutes < 0 ? focusState.stop() : focusState.start(minutes))
    }

    function showAppMenu(item: Item, bundleID: string, name: string, isRunning: bool, isInMode: bool) {
        const membership = isInMode ? { text: qsTr("Remove from %1").arg(dock.modeName), value: "remove", symbol: "xmark" }
                                    : { text: qsTr("Add to %1").arg(dock.modeName), value: "add", symbol: "plus" }
        const reveal = { text: qsTr("Show in File Manager"), value: "reveal", symbol: "folder" }
        const entries = isRunning
            ? [{ header: name }, { text: qsTr("Bring to Front"), value: "open", symbol: "arrow.right" },
               { text: qsTr("Show All Windows"), value: "showAll", symbol: "app.dashed" },
               { text: qsTr("Hide"), value: "hide", symbol: "moon" }, membership, reveal,
               { separator: true }, { text: qsTr("Quit"), value: "quit", symbol: "stop" }]
            : [{ header: name }, { text: qsTr("Open"), value: "open", symbol: "arrow.right" }, membership, reveal]
        open(item, entries, choice => runAppChoice(bundleID, choice))
    }

    function runAppChoice(bundleID: string, choice: string) {
        switch (choice) {
        case "open": dock.openApp(bundleID); break
        case "showAll": dock.showAllWindows(bundleID); break
        case "hide": dock.hideApp(bundleID); break
        case "add": dock.setInMode(bundleID, true); break
        case "remove": dock.setInMode(bundleID, false); break
        case "reveal": dock.revealApp(bundleID); break
        case "quit": dock.quitApp(bundleID); break
        }
    }

    function showModeMenu(item: Item, modeID: string, name: string, isCurrent: bool, heldCount: int) {
        const change = isCurrent ? [] : [{ text: qsTr("Switch to %1").arg(name), value: "switch", symbol: "arrow.right" }]
        const held = heldCount === 0 ? [] : [{ text: qsTr("Held Messages (%1)…").arg(heldCount), value: "held", symbol: "bell.badge" }]
        const separator = isCurrent && heldCount === 0 ? [] : [{ separator: true }]
        const entries = [{ header: name }, ...change, ...held, ...separator,
                         { text: qsTr("Settings…"), value: "settings", symbol: "gearshape" }]
        const isByKeyboard = panel.hasKeyboard
        open(item, entries, choice => runModeChoice(modeID, choice, isByKeyboard))
    }

    function runModeChoice(modeID: string, choice: string, isByKeyboard: bool) {
        switch (choice) {
        case "switch": dock.requestMode(modeID); break
        case "held": dock.showHeld(modeID, isByKeyboard); break
        case "settings": dock.openSettings("modes"); break
        }
    }

    function showDockMenu(item: Item) {
        const entries = [{ text: qsTr("Settings…"), value: "settings", symbol: "gearshape" }, { separator: true },
                         { text: qsTr("Quit Fendrel"), value: "quit", symbol: "stop" }]
        open(item, entries, choice => choice === "quit" ? dock.quit() : dock.openSettings("dock"))
    }
}
