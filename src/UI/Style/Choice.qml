import QtQuick

// One of a few values, all in sight: side by side, or below one another where there is no room for that.
FocusScope {
    id: choice

    required property Colors colors
    required property string name
    required property list<string> labels
    required property int current

    signal chosen(index: int)

    readonly property real room: (parent as SettingSlot)?.room ?? implicitWidth
    readonly property bool isStacked: implicitWidth > room
    readonly property bool isMirrored: LayoutMirroring.enabled
    readonly property real lineHeight: Theme.controlHeight(metrics.height) - 2 * inset
    readonly property int inset: 2

    // Measured bold, as the chosen one is drawn: the others would move when one is chosen.
    readonly property var widths: {
        let all = []
        for (let index = 0; index < labels.length; ++index)
            all.push(Math.ceil(metrics.advanceWidth(labels[index]) + 1.8 * metrics.height))
        return all
    }

    implicitWidth: widths.reduce((sum, width) => sum + width, 2 * inset)
    width: Math.min(implicitWidth, room)
    height: (isStacked ? labels.length : 1) * lineHeight + 2 * inset
    implicitHeight: lineHeight + 2 * inset
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Keys.onLeftPressed: step(isMirrored ? 1 : -1)
    Keys.onRightPressed: step(isMirrored ? -1 : 1)
    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: step(1)

    function step(by: int) {
        const next = segments.itemAt(current + by)
        if (!next)
            return
        chosen(current + by)
        next.forceActiveFocus(Qt.TabFocusReason)
    }

    FontMetrics {
        id: metrics
        font.pixelSize: Theme.text
        font.weight: Font.DemiBold
    }
    Rectangle {
        anchors.fill: parent
        radius: 9
        color: choice.colors.pressed
    }
    Grid {
        id: grid
        anchors { fill: parent; margins: choice.inset }
        columns: choice.isStacked ? 1 : Math.max(1, choice.labels.length)
        Repeater {
            id: segments
            model: choice.labels
            Item {
                id: segment
                required property string modelData
                required property int index
                readonly property bool isCurrent: choice.current === index
                width: choice.isStacked ? grid.width : choice.widths[index]
                height: choice.lineHeight
                activeFocusOnTab: isCurrent || (choice.current < 0 && index === 0)
                Accessible.role: Accessible.RadioButton
                Accessible.name: modelData
                Accessible.focusable: true
                Accessible.checkable: true
                Accessible.checked: isCurrent
                Accessible.onPressAction: choice.chosen(index)

                Rectangle {
                    anchors.fill: parent
                    radius: 7
                    color: segment.isCurrent ? choice.colors.raised : hover.hovered ? choice.colors.hover : "transparent"
                    border.width: segment.isCurrent ? 1 : 0
                    border.color: choice.colors.line
                    Behavior on color { ColorAnimation { duration: Theme.quick } }
                }
                Label {
                    anchors { fill: parent; leftMargin: 6; rightMargin: 6 }
                    colors: choice.colors
                    color: segment.isCurrent ? choice.colors.text : choice.colors.secondaryText
                    text: segment.modelData
                    font.weight: segment.isCurrent ? Font.DemiBold : Font.Normal
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
                HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
                TapHandler { onTapped: choice.chosen(segment.index) }
            }
        }
    }
    FocusRing { target: choice; targetRadius: 9; }
}
