import QtQuick
import Fendrel.Style

// One of several things, picked from a list that lies over the page beside what asked for it.
FocusScope {
    id: menu

    required property Colors colors
    property string name: ""
    property var entries: [] // name, and perhaps tint
    property int current: -1
    property var action: null // called with the position of what was picked
    property Item asker: null
    property Item before: null // had the keyboard

    readonly property int inset: 6

    anchors.fill: parent
    visible: false

    function open(from: Item, about: string, list: var, chosen: int, done: var) {
        before = Window.activeFocusItem
        asker = from
        name = about
        entries = list
        current = chosen
        action = done
        let widest = from.width
        for (let index = 0; index < rows.count; ++index)
            widest = Math.max(widest, rows.itemAt(index).implicitWidth + 2 * inset)
        const space = from.mapToItem(menu, 0, 0, from.width, from.height)
        frame.width = Math.min(widest, width - 16)
        frame.x = Math.max(8, Math.min(LayoutMirroring.enabled ? space.x : space.x + from.width - frame.width, width - frame.width - 8))
        column.forceLayout()
        const wanted = column.height + 2 * inset
        const below = height - space.y - space.height - 12
        const above = space.y - 12
        const isBelow = wanted <= below || below >= above
        frame.height = Math.min(wanted, isBelow ? below : above)
        frame.y = isBelow ? space.y + space.height + 4 : space.y - frame.height - 4
        visible = true
        lead(Math.max(0, chosen))
    }
    function close() {
        visible = false
        before?.forceActiveFocus(Qt.OtherFocusReason)
    }
    function lead(index: int) {
        const item = rows.itemAt(index)
        if (!item)
            return
        item.forceActiveFocus(Qt.TabFocusReason)
        scroller.contentY = Math.max(item.y + item.height - scroller.height, Math.min(item.y, scroller.contentY))
    }
    function pick(index: int) {
        close()
        action.call(null, index)
    }

    Keys.onEscapePressed: close()
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
    Keys.onTabPressed: close()
    Keys.onBacktabPressed: close()

    MouseArea { // not a handler: nothing below is to be pressed
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: menu.close()
        onWheel: menu.close()
    }
    Shadow { caster: frame; casterRadius: 12; opacity: 0.35 }
    Rectangle {
        id: frame
        radius: 12
        color: menu.colors.card
        border.width: 1
        border.color: menu.colors.line

        MouseArea { anchors.fill: parent }
        Flickable {
            id: scroller
            anchors { fill: parent; margins: menu.inset }
            contentHeight: column.height
            boundsBehavior: Flickable.StopAtBounds
            clip: true

            Column {
                id: column
                width: scroller.width
                Accessible.role: Accessible.PopupMenu
                Accessible.name: menu.name

                Repeater {
                    id: rows
                    model: menu.entries
                    Item {
                        id: row
                        required property var modelData
                        required property int index
                        readonly property bool isCurrent: menu.current === index
                        readonly property bool hasDot: modelData.tint !== undefined

                        width: column.width
                        implicitWidth: Math.ceil(words.implicitWidth) + (hasDot ? 28 : 12) + check.width + 24
                        implicitHeight: Math.ceil(words.implicitHeight) + 14
                        Accessible.role: Accessible.MenuItem
                        Accessible.name: modelData.name
                        Accessible.checkable: true
                        Accessible.checked: isCurrent
                        Accessible.focusable: true
                        Accessible.onPressAction: menu.pick(index)
                        Keys.onReturnPressed: menu.pick(index)
                        Keys.onEnterPressed: menu.pick(index)
                        Keys.onSpacePressed: menu.pick(index)
                        Keys.onDownPressed: menu.lead((index + 1) % rows.count)
                        Keys.onUpPressed: menu.lead((index + rows.count - 1) % rows.count)

                        Rectangle {
                            anchors.fill: parent
                            radius: 8
                            color: row.activeFocus ? menu.colors.pressed : hover.hovered ? menu.colors.hover : "transparent"
                        }
                        Rectangle {
                            id: dot
                            anchors { left: parent.left; leftMargin: 12; verticalCenter: parent.verticalCenter }
                            width: Math.round(9 * Theme.textScale)
                            height: width
                            radius: width / 2
                            color: row.modelData.tint ?? "transparent"
                            visible: row.hasDot
                        }
                        Label {
                            id: words
                            anchors {
                                left: row.hasDot ? dot.right : parent.left
                                leftMargin: row.hasDot ? 8 : 12
                                right: check.left
                                rightMargin: 8
                                verticalCenter: parent.verticalCenter
                            }
                            colors: menu.colors
                            text: row.modelData.name
                            Accessible.ignored: true
                        }
                        Symbol {
                            id: check
                            anchors { right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
                            name: "checkmark"
                            size: Math.round(14 * Theme.textScale)
                            color: menu.colors.text
                            visible: row.isCurrent
                        }
                        HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
                        TapHandler { onTapped: menu.pick(row.index) }
                    }
                }
            }
        }
    }
}
