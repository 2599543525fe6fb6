import QtQuick
import Fendrel.Style
import Fendrel.Types

// A menu beside the dock, for as long as the item that it belongs to is there. `open` takes a list of entries,
// { text, hint, value, symbol, tint, isChecked, isQuiet, isGrave }, { header } or { separator: true }, and a function that is
// called with the value of the chosen one. An entry with a `page`, a list of entries, leads there; a text without either
// only says something.
PopupWindow {
    id: menu
    title: qsTr("Fendrel menu")

    required property Colors colors
    required property bool isTransparent
    property var entries: []
    property var action: null
    property var trail: [] // the pages that lead here: { entries, current }
    property DockPanel view: null
    property Item owner: null
    property rect anchor // beside which it is, in the dock's window

    readonly property bool isOwned: owner?.visible ?? false
    onIsOwnedChanged: if (!isOwned) dismiss()

    function open(panel: DockPanel, item: Item, spot: rect, list: var, chosen: var) {
        view = panel
        owner = item
        anchor = spot
        action = chosen
        trail = []
        show(list, -1)
        appear.restart()
    }
    function turnTo(index: int, isByKeyboard: bool) {
        const entry = entries[index]
        trail = [...trail, { entries: entries, current: index }]
        show([{ text: entry.text, symbol: "chevron.left", isBack: true, value: null }, { separator: true }, ...entry.page], isByKeyboard ? 2 : -1)
    }
    function turnBack() {
        const last = trail[trail.length - 1]
        trail = trail.slice(0, -1)
        show(last.entries, last.current)
    }

    function show(list: var, current: int) {
        entries = list
        column.forceLayout()
        let widest = 180
        for (let index = 0; index < rows.count; ++index)
            widest = Math.max(widest, rows.itemAt(index).implicitWidth)
        width = Math.ceil(widest) + 2 * (margin + inset)
        height = Math.ceil(column.implicitHeight) + 2 * (margin + inset)
        view.openMenu(menu, anchor, 8 - margin)
        scroller.contentY = 0
        column.current = -1
        column.forceActiveFocus()
        if (current < 0)
            return
        column.current = current
        scroller.reveal(current)
    }

    readonly property int margin: isTransparent ? 16 : 0
    readonly property int inset: 6
    readonly property real cornerRadius: 12

    Item {
        id: content
        anchors.fill: parent
        anchors.margins: menu.margin
        transformOrigin: Item.Bottom
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
        LayoutMirroring.childrenInherit: true

        ParallelAnimation {
            id: appear
            NumberAnimation { target: content; property: "opacity"; from: 0; to: 1; duration: Theme.quick }
            NumberAnimation { target: content; property: "scale"; from: Theme.reducesMotion ? 1 : 0.97; to: 1; duration: Theme.quick; easing.type: Easing.OutCubic }
        }

        Shadow { caster: panel; casterRadius: panel.radius; blur: 14; opacity: 0.35; visible: menu.isTransparent }

        Rectangle {
            id: panel
            anchors.fill: parent
            radius: menu.isTransparent ? menu.cornerRadius : 0
            color: menu.colors.card
            border.width: 1
            border.color: Qt.tint(menu.colors.card, menu.colors.line)
        }

        Flickable {
            id: scroller
            anchors.fill: parent
            anchors.margins: menu.inset
            contentHeight: column.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            clip: interactive

            function reveal(index: int) {
                const item = rows.itemAt(index)
                const top = index <= 1 ? 0 : item.y // with the header over the first
                contentY = Math.max(item.y + item.height - height, Math.min(top, contentY))
            }

            // A pointer at rest chooses nothing: neither when the menu opens under it nor when entries scroll past.
            HoverHandler {
                property point place: Qt.point(-1, -1)
                onPointChanged: {
                    if (point.scenePosition === place)
                        return
                    const moved = place.x >= 0
                    place = point.scenePosition
                    if (moved)
                        column.pointAt(column.mapFromItem(null, place.x, place.y).y)
                }
                onHoveredChanged: {
                    if (hovered)
                        return
                    place = Qt.point(-1, -1)
                    column.current = -1
                }
            }

            Column {
                id: column
                width: scroller.width
                property int current: -1

                Accessible.role: Accessible.PopupMenu
                Accessible.name: menu.entries.find(entry => entry.header)?.header ?? qsTr("Menu")

                function leads(index: int): bool {
                    const entry = menu.entries[index]
                    return entry !== undefined && (entry.value !== undefined || entry.page !== undefined)
                }
                // The next entry from a place in the list, which goes round.
                function move(from: int, step: int) {
                    const count = menu.entries.length
                    for (let tried = 0, next = from; tried < count; ++tried) {
                        next = (next + step + count) % count
                        if (leads(next)) {
                            current = next
                            scroller.reveal(next)
                            return
                        }
                    }
                }
                function pointAt(height: real) {
                    const index = menu.entries.findIndex((entry, row) => height < rows.itemAt(row).y + rows.itemAt(row).height)
                    current = leads(index) ? index : -1
                }
                function run(index: int, isByKeyboard: bool) {
                    if (!leads(index))
                        return
                    const entry = menu.entries[index]
                    if (entry.isBack) {
                        menu.turnBack()
                    } else if (entry.page) {
                        menu.turnTo(index, isByKeyboard)
                    } else {
                        menu.dismiss()
                        menu.action.call(null, entry.value)
                    }
                }
                Keys.onRightPressed: if (menu.entries[current]?.page) run(current, true)
                Keys.onLeftPressed: if (menu.trail.length > 0) menu.turnBack()
                Keys.onDownPressed: move(current, 1)
                Keys.onUpPressed: move(Math.max(0, current), -1)
                Keys.onPressed: event => {
                    if (event.key === Qt.Key_Home)
                        move(-1, 1)
                    else if (event.key === Qt.Key_End)
                        move(0, -1)
                }
                Keys.onReturnPressed: run(current, true)
                Keys.onEnterPressed: run(current, true)
                Keys.onSpacePressed: run(current, true)

                Repeater {
                    id: rows
                    model: menu.entries

                    Item {
                        id: entry
                        required property var modelData
                        required property int index
                        readonly property bool isEntry: column.leads(index)
                        readonly property bool hasMark: (modelData.isChecked ?? false) || modelData.page !== undefined
                        readonly property bool isCurrent: column.current === index
                        readonly property bool hasSymbols: menu.entries.some(other => other.symbol || other.isChecked !== undefined)

                        width: column.width
                        readonly property int symbolSize: Math.round(17 * Math.max(1, Theme.textScale))
                        readonly property int markSize: Math.round(15 * Math.max(1, Theme.textScale))
                        readonly property int start: hasSymbols && !modelData.header ? symbolSize + 19 : 10
                        readonly property real hintRoom: hint.text === "" ? 0 : hint.width + 22
                        implicitWidth: start + Math.min(label.implicitWidth, 300 * Theme.textScale) + hintRoom + (hasMark ? markSize + 29 : 20)
                        implicitHeight: modelData.separator ? 9 : label.implicitHeight + (modelData.header ? 12 : 16)

                        onIsCurrentChanged: if (isCurrent) forceActiveFocus()

                        Accessible.focusable: isEntry
                        Accessible.role: isEntry ? Accessible.MenuItem : Accessible.StaticText
                        Accessible.name: (modelData.text ?? modelData.header ?? "") + (hint.text === "" ? "" : ", " + hint.text)
                        Accessible.ignored: modelData.separator ?? false
                        Accessible.checkable: modelData.isChecked !== undefined
                        Accessible.checked: modelData.isChecked ?? false
                        Accessible.onPressAction: column.run(index, true)

                        Rectangle {
                            visible: entry.modelData.separator ?? false
                            x: 8
                            width: parent.width - 16
                            height: 1
                            anchors.verticalCenter: parent.verticalCenter
                            color: menu.colors.line
                        }
                        Rectangle {
                            visible: entry.isEntry
                            anchors.fill: parent
                            radius: 8
                            color: entry.isCurrent ? menu.colors.pressed : "transparent"
                        }
                        Symbol {
                            visible: (entry.modelData.symbol ?? "") !== ""
                            name: entry.modelData.symbol ?? ""
                            size: entry.symbolSize
                            color: entry.modelData.tint ? menu.colors.tintText(entry.modelData.tint) : menu.colors.secondaryText
                            anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
                        }
                        Label {
                            id: label
                            colors: menu.colors
                            color: entry.modelData.isGrave ? menu.colors.grave
                                 : entry.isEntry && !entry.modelData.isQuiet ? menu.colors.text : menu.colors.secondaryText
                            text: entry.modelData.text ?? entry.modelData.header ?? ""
                            Accessible.ignored: true
                            font.pixelSize: entry.modelData.header ? Theme.textSmall : Theme.text
                            font.weight: entry.modelData.header ? Font.DemiBold : Font.Normal
                            anchors { left: parent.left; leftMargin: entry.start; verticalCenter: parent.verticalCenter }
                            width: Math.min(Math.ceil(implicitWidth), 300 * Theme.textScale)
                        }
                        Label {
                            id: hint
                            anchors { right: parent.right; rightMargin: entry.hasMark ? entry.markSize + 19 : 10; verticalCenter: parent.verticalCenter }
                            colors: menu.colors
                            color: menu.colors.secondaryText
                            text: entry.modelData.hint ?? ""
                            width: Math.min(Math.ceil(implicitWidth), 200 * Theme.textScale)
                            Accessible.ignored: true
                        }
                        Symbol {
                            visible: entry.hasMark
                            name: entry.modelData.page ? "chevron.right" : "checkmark"
                            size: entry.markSize
                            color: menu.colors.text
                            anchors.right: parent.right
                            anchors.rightMargin: 10
                            anchors.verticalCenter: parent.verticalCenter
                        }
                        TapHandler {
                            enabled: entry.isEntry
                            onTapped: column.run(entry.index, false)
                        }
                    }
                }
            }
        }
    }
}
