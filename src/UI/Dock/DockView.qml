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
    readonly property bool isVertical: edge !== Qt.BottomEdge
    readonly property int margin: 8
    readonly property int padding: 9
    readonly property real spacing: dock.spacing

    Colors {
        id: lookColors
        isDark: root.dock.isDark
    }

    // Where the bar is when it shows; it slides out from there.
    readonly property real barLength: layout.current + pillStrip.length + (apps.count > 0 ? appStrip.length : 0) + 2 * padding
    readonly property real barDepth: (isVertical ? strip.width : strip.height) + 2 * 6
    readonly property real barWidth: isVertical ? barDepth : barLength
    readonly property real barHeight: isVertical ? barLength : barDepth
    readonly property rect resting: Qt.rect(
        edge === Qt.LeftEdge ? margin : edge === Qt.RightEdge ? width - margin - barWidth : Math.round((width - barWidth) / 2),
        edge === Qt.BottomEdge ? height - margin - barHeight : Math.round((height - barHeight) / 2),
        barWidth, barHeight)

    BarLayout {
        id: layout

        // The lines between the sections and the room around them.
        readonly property real separators: (apps.count > 0 ? 9 + 2 * root.spacing : 0) + 9 + 2 * root.spacing

        room: (root.isVertical ? root.height : root.width) - 2 * root.margin - 2 * root.padding
        steady: separators + chip.longest + focusButton.longest + meter.length + 2 * root.spacing
        current: separators + focusButton.length + (chip.visible ? chip.length + root.spacing : 0)
                 + (meter.visible ? meter.length + root.spacing : 0)
        modeCount: pills.count
        nameLength: root.longestName
        appCount: apps.count
        fullIconSize: root.dock.iconSize
        fullSpacing: Math.max(0, root.spacing - 4)
    }

    // Of the pills when they have stopped moving.
    property real pillsLength: 0
    property real longestName: 0
    function measurePills() {
        let length = (pills.count - 1) * layout.pillSpacing
        let name = 0
        for (let index = 0; index < pills.count; ++index) {
            const pill = pills.itemAt(index) as ModePill
            if (!pill)
                continue
            length += pill.length
            name = Math.max(name, pill.nameLength)
        }
        longestName = name
        pillsLength = length
    }

    Binding { target: root.panel; property: "bar"; value: root.resting; when: root.width > 0 }
    Binding { target: root.panel; property: "isPointerInside"; value: hover.hovered }
    Binding { target: root.panel; property: "isHeld"; value: menu.visible || root.panel.hasKeyboard }

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
    // A switch that takes its time can still be hurried with the keyboard; when it is done, the keyboard goes back.
    readonly property string modeID: dock.modeID
    onModeIDChanged: panel.releaseKeyboard()
    readonly property bool isGateOpen: dock.isGateOpen
    onIsGateOpenChanged: if (isGateOpen) panel.releaseKeyboard()

    Item {
        id: slider
        anchors.fill: parent

        readonly property real away: root.panel.isShown ? 0 : (root.isVertical ? root.barWidth : root.barHeight) + root.margin + 20
        property real offset: away
        Behavior on offset { NumberAnimation { duration: Theme.slow; easing.type: Easing.OutCubic } }

        transform: Translate {
            x: root.edge === Qt.LeftEdge ? -slider.offset : root.edge === Qt.RightEdge ? slider.offset : 0
            y: root.edge === Qt.BottomEdge ? slider.offset : 0
        }

        Shadow {
            caster: bar
            casterRadius: bar.radius
            opacity: root.dock.shadow
            visible: root.panel.isTransparent
        }

        // Where nothing blends windows, the window's own shape makes the corners.
        Rectangle {
            anchors.fill: bar
            visible: !root.panel.isTransparent
            color: root.dock.background
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
            readonly property color line: lookColors.faded(lookColors.text, root.dock.border)
            border.color: root.panel.isTransparent ? line : Qt.tint(root.dock.background, line)

            Behavior on x { enabled: bar.moves && !root.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on width { enabled: bar.moves && !root.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on y { enabled: bar.moves && root.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on height { enabled: bar.moves && root.isVertical; NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
            Behavior on color { ColorAnimation { duration: Theme.slow } }
            // What is there at the start is simply there; only later changes move.
            property bool isReady: false
            // Where nothing blends windows, theirs is cut to the bar at once.
            readonly property bool moves: isReady && root.panel.isTransparent
            SequentialAnimation {
                running: true
                PauseAnimation { duration: 500 }
                PropertyAction { target: bar; property: "isReady"; value: true }
            }

            Line {
                id: strip
                anchors.centerIn: parent
                isVertical: root.isVertical
                spacing: root.spacing

                ScrollStrip {
                    id: pillStrip
                    isVertical: root.isVertical
                    room: layout.pillsRoom
                    fullLength: root.pillsLength
                    isMoving: bar.moves
                    spacing: layout.pillSpacing

                    Accessible.role: Accessible.Grouping
                    Accessible.name: qsTr("Modes")

                    Repeater {
                        id: pills
                        model: root.dock.modes
                        onItemRemoved: root.measurePills()
                        ModePill {
                            id: pill
                            readonly property bool isSought: isCurrent || isPending || activeFocus
                            colors: lookColors
                            tip: dockTip
                            isVertical: root.isVertical
                            pendingSeconds: root.focusState.pendingSeconds
                            size: layout.pillSize
                            isCompact: layout.isCompact
                            isTipForced: isPending && !root.dock.isGateOpen
                            opacity: pillStrip.visibility(pill)
                            onLengthChanged: root.measurePills()
                            onNameLengthChanged: root.measurePills()
                            onIsSoughtChanged: if (isSought) pillStrip.reveal(pill)
                            Component.onCompleted: if (isSought) pillStrip.reveal(pill)
                            background: root.dock.background
                            onPressed: root.dock.requestMode(modeID)
                            onMenuAsked: menus.showModeMenu(pill, modeID, name, isCurrent, heldCount)
                        }
                    }
                }

                Separator { colors: lookColors; isVertical: root.isVertical; visible: apps.count > 0 }

                ScrollStrip {
                    id: appStrip
                    isVertical: root.isVertical
                    room: layout.appsRoom(pillStrip.length)
                    isMoving: bar.moves
                    spacing: layout.spacing
                    visible: apps.count > 0

                    Accessible.role: Accessible.Grouping
                    Accessible.name: qsTr("Applications")

                    add: Transition {
                        NumberAnimation { properties: "coming,scale"; from: 0; to: 1; duration: Theme.normal; easing.type: Easing.OutCubic }
                    }
                    move: Transition {
                        NumberAnimation { properties: "x,y"; duration: Theme.normal; easing.type: Easing.OutCubic }
                        NumberAnimation { properties: "coming,scale"; to: 1; duration: Theme.normal }
                    }

                    Repeater {
                        id: apps
                        model: root.dock.apps
                        delegate: AppButton {
                            id: app
                            required property bool startsOthers
                            readonly property bool isSought: isFront || activeFocus
                            colors: lookColors
                            tip: dockTip
                            isVertical: root.isVertical
                            edge: root.edge
                            iconSize: layout.iconSize
                            pictureSize: root.dock.iconSize
                            share: appStrip.visibility(app)
                            hoverScale: 1 + (root.dock.magnification - 1) * 0.45
                            markColor: root.dock.tint
                            leading: startsOthers ? layout.startOfOthers : 0
                            onIsSoughtChanged: if (isSought) appStrip.reveal(app)
                            Component.onCompleted: if (isSought) appStrip.reveal(app)
                            onPressed: {
                                root.panel.releaseKeyboard()
                                root.dock.openApp(bundleID)
                            }
                            onMenuAsked: menus.showAppMenu(app, bundleID, name, isRunning, isInMode)
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
                    wordsRoom: Math.min(150, Math.round(root.width / 9))
                    onPressed: menus.correct(chip)
                }

                FocusButton {
                    id: focusButton
                    colors: lookColors
                    tip: dockTip
                    isVertical: root.isVertical
                    focusState: root.focusState
                    tint: root.dock.tint
                    onPressed: menus.chooseFocus(focusButton)
                    onMenuAsked: pressed()
                }

                BudgetMeter {
                    id: meter
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
                onTapped: menus.showDockMenu(focusButton)
            }
        }

        DockTip {
            id: dockTip
            anchors.fill: parent
            edge: root.edge
            bar: bar
            isSuppressed: menu.visible
            scrolled: appStrip.position + pillStrip.position
        }
    }

    DockMenu {
        id: menu
        colors: lookColors
        isTransparent: root.panel.isTransparent
        onDismissed: root.panel.menuClosed()
    }

    DockMenus {
        id: menus
        popup: menu
        panel: root.panel
        dock: root.dock
        focusState: root.focusState
        verdict: root.verdict
    }
}
