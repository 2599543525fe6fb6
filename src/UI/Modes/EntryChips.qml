import QtQuick
import Fendrel.Style
import Fendrel.Types

// A short list whose entries can be removed.
Flow {
    id: list

    required property Colors colors
    required property string name
    required property EntriesModel entries
    readonly property int count: repeater.count

    signal removed(entryID: string)

    spacing: 8
    Accessible.role: Accessible.List
    Accessible.name: name

    Repeater {
        id: repeater
        model: list.entries

        Rectangle {
            id: chip
            required property string entryID
            required property string name
            required property string icon
            width: content.width + 16
            height: 34
            radius: 9
            color: list.colors.hover
            border.width: 1
            border.color: list.colors.line
            Accessible.role: Accessible.ListItem
            Accessible.name: name

            Row {
                id: content
                x: chip.icon === "" ? 12 : 8
                width: implicitWidth + (chip.icon === "" ? 4 : 0)
                anchors.verticalCenter: parent.verticalCenter
                spacing: 7
                Image {
                    visible: chip.icon !== ""
                    anchors.verticalCenter: parent.verticalCenter
                    width: 20
                    height: 20
                    sourceSize { width: 40; height: 40 }
                    source: chip.icon
                    asynchronous: true
                    mipmap: true
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    colors: list.colors
                    width: Math.min(Math.ceil(implicitWidth), 280)
                    text: chip.name
                    Accessible.ignored: true
                }
                Item {
                    id: remover
                    anchors.verticalCenter: parent.verticalCenter
                    width: 22
                    height: 22
                    activeFocusOnTab: true
                    Accessible.role: Accessible.Button
                    Accessible.name: qsTr("Remove %1").arg(chip.name)
                    Accessible.focusable: true
                    Accessible.onPressAction: remove()
                    Keys.onReturnPressed: remove()
                    Keys.onSpacePressed: remove()
                    Keys.onDeletePressed: remove()

                    function remove() {
                        // The keyboard goes on to what comes after.
                        const next = activeFocus ? nextItemInFocusChain(true) : null
                        list.removed(chip.entryID)
                        next?.forceActiveFocus(Qt.TabFocusReason)
                    }
                    Rectangle {
                        anchors.fill: parent
                        radius: 6
                        color: tap.pressed ? list.colors.pressed : hover.hovered ? list.colors.hover : "transparent"
                    }
                    Symbol {
                        anchors.centerIn: parent
                        name: "xmark"
                        size: 13
                        color: hover.hovered || remover.activeFocus ? list.colors.text : list.colors.secondaryText
                    }
                    FocusRing { target: remover; targetRadius: 6; gap: 1 }
                    HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
                    TapHandler { id: tap; gesturePolicy: TapHandler.ReleaseWithinBounds; onTapped: remover.remove() }
                }
            }
        }
    }
}
