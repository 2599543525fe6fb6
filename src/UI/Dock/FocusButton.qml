import QtQuick
import QtQuick.Shapes
import Fendrel.Style
import Fendrel.Types

// Starts and ends a focus session, and shows what remains of it.
DockItem {
    id: button

    required property FocusController focusState
    required property color tint
    property int size: 36
    readonly property real scaling: size / 36

    readonly property bool isTimed: focusState.isOn && focusState.remaining !== ""
    readonly property color foreground: focusState.isOn ? colors.onTint(tint) : colors.text
    readonly property string text: !focusState.isOn ? qsTr("Focus") : focusState.remaining === "" ? qsTr("Focused") : focusState.remaining

    // In steps, so that a minute less moves nothing.
    implicitWidth: isVertical ? size : Math.ceil((content.implicitWidth + 24) / 12) * 12
    implicitHeight: isVertical && isTimed ? Math.round(48 * scaling) : size
    tipText: !focusState.isOn ? qsTr("Start a focus session")
           : isTimed ? qsTr("Focus session, %1 left, until %2").arg(focusState.remaining).arg(focusState.endTime)
           : qsTr("Focus session, until you end it")

    Accessible.role: Accessible.Button
    Accessible.name: tipText

    readonly property real longest: isVertical ? Math.round(48 * scaling) : Math.round(132 * Math.max(1, Theme.textScale)) // with hours and minutes left

    width: implicitWidth
    Behavior on width { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }

    Rectangle {
        anchors.fill: parent
        radius: 12
        color: button.focusState.isOn ? button.tint : button.isPressed ? button.colors.pressed : button.colors.hover
        border.width: button.isHovered && !button.focusState.isOn ? 1 : 0
        border.color: button.colors.line
        scale: button.isPressed ? 0.96 : 1
        Behavior on color { ColorAnimation { duration: Theme.normal } }
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
    }

    Grid {
        id: content
        anchors.centerIn: parent
        columns: button.isVertical ? 1 : 2
        spacing: button.isVertical ? 2 : 7
        horizontalItemAlignment: Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        Item {
            width: Math.round(19 * button.scaling)
            height: width
            Symbol {
                anchors.centerIn: parent
                visible: !button.isTimed
                name: "scope"
                size: parent.width
                color: button.foreground
            }
            // What is left, as on the dial of a kitchen timer.
            Shape {
                anchors.centerIn: parent
                width: 19
                height: 19
                scale: parent.width / width
                visible: button.isTimed
                ShapePath {
                    strokeColor: button.colors.faded(button.foreground, 0.3)
                    strokeWidth: 2.5
                    fillColor: "transparent"
                    PathAngleArc { centerX: 9.5; centerY: 9.5; radiusX: 8; radiusY: 8; startAngle: 0; sweepAngle: 360 }
                }
                ShapePath {
                    strokeColor: button.foreground
                    strokeWidth: 2.5
                    capStyle: ShapePath.RoundCap
                    fillColor: "transparent"
                    PathAngleArc {
                        centerX: 9.5; centerY: 9.5; radiusX: 8; radiusY: 8
                        startAngle: -90
                        sweepAngle: Math.max(1, 360 * button.focusState.hourShare)
                        Behavior on sweepAngle { NumberAnimation { duration: Theme.slow; easing.type: Easing.OutCubic } }
                    }
                }
            }
        }
        Label {
            colors: button.colors
            color: button.foreground
            visible: !button.isVertical || button.isTimed
            text: button.isVertical ? button.text.split(" ")[0] : button.text
            font.pixelSize: button.isVertical ? Theme.textSmall : Theme.text
            font.weight: Font.DemiBold
        }
    }
}
