import QtQuick
import Fendrel.Style
import Fendrel.Types

// The modes, a pill each.
ScrollStrip {
    id: section

    required property Colors colors
    required property DockTip tip
    required property DockController dock
    required property FocusController focusState
    required property DockMenus menus
    required property BarLayout layout

    readonly property int count: pills.count
    // Of the pills when they have stopped moving.
    property real pillsLength: 0
    property real longestName: 0
    function measure() {
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
    function first(): Item {
        return pills.itemAt(0)
    }

    room: layout.pillsRoom
    fullLength: pillsLength
    spacing: layout.pillSpacing

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Modes")

    Repeater {
        id: pills
        model: section.dock.modes
        onItemRemoved: section.measure()
        ModePill {
            id: pill
            readonly property bool isSought: isCurrent || isPending || activeFocus
            colors: section.colors
            tip: section.tip
            isVertical: section.isVertical
            pendingSeconds: section.focusState.pendingSeconds
            size: section.layout.pillSize
            isCompact: section.layout.isCompact
            isTipForced: isPending && !section.dock.isGateOpen
            opacity: section.visibility(pill)
            onLengthChanged: section.measure()
            onNameLengthChanged: section.measure()
            onIsSoughtChanged: if (isSought) section.reveal(pill)
            Component.onCompleted: if (isSought) section.reveal(pill)
            background: section.dock.background
            onPressed: section.dock.requestMode(modeID)
            onAppDropped: bundleID => section.dock.actions.add(bundleID, modeID)
            onMenuAsked: section.menus.showModeMenu(pill, modeID, name, isCurrent, heldCount)
        }
    }
}
