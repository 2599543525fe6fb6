import QtQuick
import Fendrel.Style
import Fendrel.Types

// A menu beside the dock. `open` takes a list of entries, { text, value, symbol, tint, isChecked }, { header } or
// { separator: true }, and a function that is called with the value of the chosen one.
PopupWindow {
    id: menu

    required property Colors colors
    required property bool isTransparent
    property var entries: []
    property var action: null

    function open(view: DockPanel, item: Item, list: var, chosen: var) {
        entries = list
        action = chosen
        column.forceLayout()
        const corner = item.mapToItem(null, 0, 0)
        width = Math.ceil(content.implicitWidth) + 2 * margin
        height = Math.ceil(content.implicitHeight) + 2 * margin
        view.openMenu(menu, Qt.rect(corner.x, corner.y, item.width, item.height), 8 - margin)
        column.forceActiveFocus()
        column.current = -1
        appear.restart()
    }

    readonly property int margin: isTransparent ? 16 : 0
    readonly property real cornerRadius: 12

    Item {
        id: content
        anchors.fill: parent
        anchors.margins: menu.margin
        implicitWidth: Math.max(180, column.implicitWidth + 12)
        implicitHeight: column.implicitHeight + 12
        transformOrigin: Item.Bottom

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
            border.color: menu.colors.line
        }

        Column {
            id: column
            anchors.fill: parent
            anchors.margins: 6
            property int current: -1

            Accessible.role: Accessible.PopupMenu
            Accessible.name: qsTr("Menu")

            function move(step: int) {
                const count = menu.entries.length
                for (let tried = 0, next = current; tried < count; ++tried) {
                    next = (next + step + count) % count
                    if (menu.entries[next].value !== undefined) {
                        current = next
                        return
                    }
                }
            }
            function run(index: int) {
                const value = index >= 0 ? menu.entries[index].value : undefined
                if (value === undefined)
                    return
                menu.dismiss()
                menu.action.call(null, value)
            }
            Keys.onDownPressed: move(1)
            Keys.onUpPressed: current < 0 ? move(-1) : move(-1)
            Keys.onReturnPressed: run(current)
            Keys.onEnterPressed: run(current)
            Keys.onSpacePressed: run(current)

            Repeater {
                model: menu.entries

                Item {
                    id: entry
                    required property var modelData
                    required property int index
                    readonly property bool isEntry: modelData.value !== undefined
                    readonly property bool isCurrent: column.current === index
                    readonly property bool hasSymbols: menu.entries.some(other => other.symbol || other.isChecked !== undefined)

                    width: Math.max(column.width, implicitWidth)
                    implicitWidth: label.x + label.implicitWidth + (modelData.isChecked ? 44 : 20)
                    implicitHeight: modelData.separator ? 9 : modelData.header ? 26 : 32

                    Accessible.role: isEntry ? Accessible.MenuItem : Accessible.StaticText
                    Accessible.name: modelData.text ?? modelData.header ?? ""
                    Accessible.ignored: modelData.separator ?? false
                    Accessible.checked: modelData.isChecked ?? false
                    Accessible.onPressAction: column.run(index)

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
                        color: entry.isCurrent ? menu.colors.hover : "transparent"
                    }
                    Symbol {
                        visible: (entry.modelData.symbol ?? "") !== ""
                        name: entry.modelData.symbol ?? ""
                        size: 17
                        color: entry.modelData.tint ? menu.colors.tintText(entry.modelData.tint) : menu.colors.secondaryText
                        x: 10
                        anchors.verticalCenter: parent.verticalCenter
                    }
                    Label {
                        id: label
                        colors: menu.colors
                        color: entry.modelData.header ? menu.colors.secondaryText : menu.colors.text
                        text: entry.modelData.text ?? entry.modelData.header ?? ""
                        font.pixelSize: entry.modelData.header ? Theme.textSmall : Theme.text
                        font.weight: entry.modelData.header ? Font.DemiBold : Font.Normal
                        x: entry.hasSymbols && !entry.modelData.header ? 36 : 10
                        anchors.verticalCenter: parent.verticalCenter
                    }
                    Symbol {
                        visible: entry.modelData.isChecked ?? false
                        name: "checkmark"
                        size: 15
                        color: menu.colors.text
                        anchors.right: parent.right
                        anchors.rightMargin: 10
                        anchors.verticalCenter: parent.verticalCenter
                    }
                    HoverHandler {
                        onHoveredChanged: column.current = hovered && entry.isEntry ? entry.index : column.current === entry.index ? -1 : column.current
                    }
                    TapHandler {
                        enabled: entry.isEntry
                        onTapped: column.run(entry.index)
                    }
                }
            }
        }
    }
}
