import QtQuick

// One of a few values, all in sight.
Item {
    id: choice

    required property Colors colors
    required property string name
    required property list<string> labels
    required property int current

    signal chosen(index: int)

    implicitWidth: row.implicitWidth + 4
    implicitHeight: 32
    activeFocusOnTab: true
    Accessible.role: Accessible.Grouping
    Accessible.name: name
    Accessible.focusable: true

    Keys.onLeftPressed: if (current > 0) chosen(current - 1)
    Keys.onRightPressed: if (current < labels.length - 1) chosen(current + 1)

    Rectangle {
        anchors.fill: parent
        radius: 9
        color: choice.colors.pressed
    }
    Row {
        id: row
        x: 2
        y: 2
        Repeater {
            model: choice.labels
            Item {
                id: segment
                required property string modelData
                required property int index
                readonly property bool isCurrent: choice.current === index
                width: label.implicitWidth + 28
                height: 28
                Accessible.role: Accessible.RadioButton
                Accessible.name: modelData
                Accessible.checkable: true
                Accessible.checked: isCurrent
                Accessible.onPressAction: choice.chosen(index)

                Rectangle {
                    anchors.fill: parent
                    radius: 7
                    color: segment.isCurrent ? choice.colors.card : "transparent"
                    border.width: segment.isCurrent ? 1 : 0
                    border.color: choice.colors.line
                    Behavior on color { ColorAnimation { duration: Theme.quick } }
                }
                Label {
                    id: label
                    anchors.centerIn: parent
                    colors: choice.colors
                    color: segment.isCurrent ? choice.colors.text : choice.colors.secondaryText
                    text: segment.modelData
                    font.weight: segment.isCurrent ? Font.DemiBold : Font.Normal
                    Accessible.ignored: true
                }
                TapHandler { onTapped: choice.chosen(segment.index) }
            }
        }
    }
    FocusRing { target: choice; targetRadius: 9 }
}
