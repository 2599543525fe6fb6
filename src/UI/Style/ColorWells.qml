import QtQuick

// A color: one of a few good ones, or any other, which opens a picker below them.
Column {
    id: wells

    required property Colors colors
    required property string name
    required property var choices // [{ name, color }]
    required property color current

    signal moved(color: color) // at each step on the way
    signal settled()

    readonly property int chosen: choices.findIndex(choice => Qt.colorEqual(choice.color, current))
    property bool isOpen: false // asked for, though the color is one of the choices
    readonly property bool isOther: isOpen || chosen < 0

    spacing: 16

    RadioRow {
        id: disks
        width: parent.width
        spacing: 10
        name: wells.name
        model: wells.choices.concat([{ name: qsTr("Another color"), color: "transparent" }])
        delegate: RadioItem {
            id: well
            required property var modelData
            readonly property bool isLast: index === wells.choices.length
            readonly property real scaling: Math.min(1.6, Math.max(1, Theme.textScale))
            row: disks
            label: modelData.name
            isChosen: isLast ? wells.isOther : !wells.isOther && wells.chosen === index
            onChosen: {
                wells.isOpen = isLast
                if (isLast)
                    return
                wells.moved(modelData.color)
                wells.settled()
            }
            width: Math.round(30 * scaling)
            height: width

            Rectangle {
                anchors { fill: parent; margins: -4 }
                radius: width / 2
                color: "transparent"
                border.width: 2
                border.color: wells.colors.accent
                visible: well.isChosen
            }
            Rectangle {
                id: disk
                anchors.fill: parent
                radius: width / 2
                color: well.isLast ? wells.isOther ? wells.current : wells.colors.hover : well.modelData.color
                border.width: 1
                border.color: wells.colors.isStrong ? wells.colors.line : wells.colors.faded(wells.colors.text, 0.28)
            }
            Symbol {
                anchors.centerIn: parent
                size: Math.round(17 * well.scaling)
                name: well.isLast ? "paintpalette" : "checkmark"
                color: !well.isLast || wells.isOther ? wells.colors.onTint(disk.color) : wells.colors.text
                visible: well.isLast || well.isChosen
            }
            FocusRing { target: well; targetRadius: width / 2; gap: 6; visible: well.activeFocus && !well.isPointed }
        }
    }
    Loader {
        width: parent.width
        active: wells.isOther
        visible: active
        sourceComponent: ColorPicker {
            colors: wells.colors
            current: wells.current
            onMoved: color => {
                wells.isOpen = true // it may be one of the choices on the way
                wells.moved(color)
            }
            onSettled: wells.settled()
        }
    }
}
