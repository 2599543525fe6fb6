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
    readonly property real scaling: Math.max(1, Theme.textScale)

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
            required property string note
            required property string icon
            readonly property real room: Math.max(60, list.width - 2 * padding - remover.width - content.spacing
                                                  - (icon === "" ? 0 : picture.width + content.spacing))
            readonly property int padding: 9
            width: content.width + 2 * padding
            height: Math.round(34 * list.scaling)
            radius: Theme.radius
            color: list.colors.hover
            border.width: 1
            border.color: list.colors.line
            Accessible.role: Accessible.ListItem
            Accessible.name: name
            Accessible.description: note

            Row {
                id: content
                anchors.centerIn: parent
                spacing: 7
                Image {
                    id: picture
                    visible: chip.icon !== ""
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.round(20 * list.scaling)
                    height: width
                    sourceSize { width: picture.width * 2; height: picture.width * 2 }
                    source: chip.icon
                    asynchronous: true
                    mipmap: true
                }
                Label {
                    id: caption
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(Math.ceil(implicitWidth), 260 * list.scaling, chip.room)
                    colors: list.colors
                    text: chip.name
                    Accessible.ignored: true
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: text !== ""
                    width: Math.min(Math.ceil(implicitWidth), chip.room - caption.width - content.spacing)
                    colors: list.colors
                    color: list.colors.secondaryText
                    text: chip.note
                    font.pixelSize: Theme.textSmall
                    Accessible.ignored: true
                }
                Item {
                    id: remover
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.round(22 * list.scaling)
                    height: width
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
                        size: Math.round(13 * list.scaling)
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
