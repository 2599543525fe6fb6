import QtQuick
import Fendrel.Style
import Fendrel.Types

// The dock of one display: modes, applications, and how the focus stands.
FocusScope {
    id: root

    required property DockPanel panel
    required property DockController dock
    required property FocusController focusState
    required property VerdictController verdict

    readonly property int edge: dock.edge
    readonly property bool isVertical: edge !== DockController.Bottom
    readonly property int margin: 8
    readonly property int padding: 9
    readonly property real spacing: dock.spacing

    Colors {
        id: lookColors
        isDark: root.dock.isDark
    }

    // Where the bar is when it shows; it slides out from there.
    readonly property real barWidth: strip.width + 2 * (isVertical ? 6 : padding)
    readonly property real barHeight: strip.height + 2 * (isVertical ? padding : 6)
    readonly property rect resting: Qt.rect(
        edge === DockController.Left ? margin : edge === DockController.Right ? width - margin - barWidth : Math.round((width - barWidth) / 2),
        edge === DockController.Bottom ? height - margin - barHeight : Math.round((height - barHeight) / 2),
        barWidth, barHeight)

    Binding { target: root.panel; property: "bar"; value: root.resting; when: root.width > 0 }
    Binding { target: root.panel; property: "isPointerInside"; value: hover.hovered }
    Binding { target: root.panel; property: "isHeld"; value: menu.visible }

    HoverHandler { id: hover }

    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Fendrel dock")

    // Arrows go through the items, Home and End to the first and last; Escape gives the keyboard back.
    Keys.onPressed: event => {
        const forward = [Qt.Key_Right, Qt.Key_Down].includes(event.key)
        const backward = [Qt.Key_Left, Qt.Key_Up].includes(event.key)
        if (forward || backward) {
            const item = root.Window.activeFocusItem?.nextItemInFocusChain(forward)
            item?.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
            event.accepted = true
        } else if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            const first = pills.itemAt(0)
            const item = event.key === Qt.Key_Home ? first : first?.nextItemInFocusChain(false)
            item?.forceActiveFocus(Qt.TabFocusReason)
            event.accepted = true
        } else if (event.key === Qt.Key_Escape) {
            root.panel.releaseKeyboard()
            event.accepted = true
        }
    }
    Connections {
        target: root.panel
        function onKeyboardTaken() {
            pills.itemAt(0)?.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    Item {
        id: slider
        anchors.fill: parent

        readonly property real away: root.panel.isShown ? 0 : (root.isVertical ? root.barWidth : root.barHeight) + root.margin + 20
        property real offset: away
        Behavior on offset { NumberAnimation { duration: Theme.slow; easing.type: Easing.OutCubic } }

        transform: Translate {
            x: root.edge === DockController.Left ? -slider.offset : root.edge === DockController.Right ? slider.offset : 0
            y: root.edge === DockController.Bottom ? slider.offset : 0
        }

        Shadow {
            caster: bar
            casterRadius: bar.radius
            opacity: root.dock.shadow
            visible: root.panel.isTransparent
        }

        Rectangle {
            id: bar
            x: root.resting.x
            y: root.resting.y
            width: root.barWidth
            height: root.barHeight
            radius: root.dock.cornerRadius
            color: lookColors.faded(root.dock.background, root.panel.isTransparent ? root.dock.opacity : 1)
            border.width: 1
            border.color: lookColors.faded(lookColors.text, root.dock.border)

            Behavior on x { enabled: bar.isReady; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on width { enabled: bar.isReady; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on color { ColorAnimation { duration: Theme.slow } }
            // What is there at the start is simply there; only later changes move.
            property bool isReady: false
            SequentialAnimation {
                running: true
                PauseAnimation { duration: 500 }
                PropertyAction { target: bar; property: "isReady"; value: true }
            }

            Grid {
                id: strip
                anchors.centerIn: parent
                rows: root.isVertical ? -1 : 1
                columns: root.isVertical ? 1 : -1
                spacing: root.spacing
                horizontalItemAlignment: Grid.AlignHCenter
                verticalItemAlignment: Grid.AlignVCenter

                Grid {
                    rows: root.isVertical ? -1 : 1
                    columns: root.isVertical ? 1 : -1
                    spacing: 2

                    Accessible.role: Accessible.Grouping
                    Accessible.name: qsTr("Modes")

                    Repeater {
                        id: pills
                        model: root.dock.modes
                        ModePill {
                            colors: lookColors
                            tip: dockTip
                            isVertical: root.isVertical
                            pendingSeconds: root.focusState.pendingSeconds
                            onPressed: root.dock.requestMode(modeID)
                        }
                    }
                }

                Separator { colors: lookColors; isVertical: root.isVertical; visible: apps.count > 0 }

                Grid {
                    rows: root.isVertical ? -1 : 1
                    columns: root.isVertical ? 1 : -1
                    spacing: Math.max(0, root.spacing - 4)
                    visible: apps.count > 0
                    horizontalItemAlignment: Grid.AlignHCenter
                    verticalItemAlignment: Grid.AlignVCenter

                    Accessible.role: Accessible.Grouping
                    Accessible.name: qsTr("Applications")

                    add: Transition {
                        NumberAnimation { properties: "opacity,scale"; from: 0; to: 1; duration: Theme.normal; easing.type: Easing.OutCubic }
                    }
                    move: Transition {
                        NumberAnimation { properties: "x,y"; duration: Theme.normal; easing.type: Easing.OutCubic }
                        NumberAnimation { properties: "opacity,scale"; to: 1; duration: Theme.normal }
                    }

                    Repeater {
                        id: apps
                        model: root.dock.apps
                        delegate: AppButton {
                            id: app
                            required property bool startsOthers
                            colors: lookColors
                            tip: dockTip
                            isVertical: root.isVertical
                            edge: root.edge
                            iconSize: root.dock.iconSize
                            hoverScale: 1 + (root.dock.magnification - 1) * 0.45
                            markColor: root.dock.tint
                            leading: startsOthers ? 17 : 0
                            onPressed: root.dock.openApp(bundleID)
                            onMenuAsked: root.showAppMenu(app, bundleID, name, isRunning, isInMode)
                        }
                    }
                }

                Separator { colors: lookColors; isVertical: root.isVertical }

                VerdictChip {
                    id: chip
                    colors: lookColors
                    tip: dockTip
                    isVertical: root.isVertical
                    verdict: root.verdict
                    onPressed: root.correct(chip)
                }

                FocusButton {
                    id: focusButton
                    colors: lookColors
                    tip: dockTip
                    isVertical: root.isVertical
                    focusState: root.focusState
                    tint: root.dock.tint
                    onPressed: root.chooseFocus(focusButton)
                    onMenuAsked: pressed()
                }

                BudgetMeter {
                    colors: lookColors
                    tip: dockTip
                    isVertical: root.isVertical
                    focusState: root.focusState
                    tint: root.dock.tint
                }
            }

            // The rest of the bar has the menu of the dock itself.
            TapHandler {
                acceptedButtons: Qt.RightButton
                onTapped: root.showDockMenu(focusButton)
            }
        }

        DockTip {
            id: dockTip
            anchors.fill: parent
            edge: root.edge
            bar: bar
            isSuppressed: menu.visible
        }
    }

    DockMenu {
        id: menu
        colors: lookColors
        isTransparent: root.panel.isTransparent
    }

    function correct(item: Item) {
        const entries = [{ header: qsTr("%1 belongs to").arg(verdict.what) },
                         ...dock.modes.menuEntries(verdict.modeID),
                         { separator: true },
                         { text: qsTr("None of them"), value: "", symbol: "xmark", isChecked: verdict.modeID === "" }]
        menu.open(panel, item, entries, modeID => verdict.correct(modeID))
    }

    function chooseFocus(item: Item) {
        const durations = [{ text: qsTr("Until I end it"), value: 0, symbol: "scope" },
                           { text: qsTr("25 minutes"), value: 25, symbol: "timer" },
                           { text: qsTr("50 minutes"), value: 50, symbol: "timer" },
                           { text: qsTr("90 minutes"), value: 90, symbol: "timer" }]
        const entries = focusState.isOn
            ? [{ text: qsTr("End focus session"), value: -1, symbol: "stop" }, { separator: true }, { header: qsTr("Start again") }, ...durations]
            : [{ header: qsTr("Focus on %1").arg(dock.modeName) }, ...durations]
        menu.open(panel, item, entries, minutes => minutes < 0 ? focusState.stop() : focusState.start(minutes))
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
        menu.open(panel, item, entries, choice => runAppChoice(bundleID, choice))
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

    function showDockMenu(item: Item) {
        const entries = [{ text: qsTr("Settings…"), value: "settings", symbol: "gearshape" }, { separator: true },
                         { text: qsTr("Quit Fendrel"), value: "quit", symbol: "stop" }]
        menu.open(panel, item, entries, choice => choice === "quit" ? dock.quit() : dock.openSettings("dock"))
    }
}
