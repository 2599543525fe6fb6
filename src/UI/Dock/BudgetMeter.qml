import QtQuick
import QtQuick.Shapes
import Fendrel.Style
import Fendrel.Types

// How much of the mode's daily drift allowance is left: a ring that empties.
DockItem {
    id: meter

    required property FocusController focusState
    required property color tint
    property int size: 36

    tipText: focusState.budgetText
    readonly property real share: focusState.budgetLeft
    readonly property color ringColor: share <= 0 ? colors.warning : tint

    implicitWidth: Math.round(size * 5 / 6)
    implicitHeight: size
    visible: focusState.hasBudget

    isButton: false
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Drift allowance")
    Accessible.description: focusState.budgetText
    // Assistive programs read these by their names.
    readonly property real value: share
    readonly property real minimumValue: 0
    readonly property real maximumValue: 1

    Shape {
        anchors.centerIn: parent
        width: 26
        height: 26
        scale: meter.size / 36

        ShapePath {
            strokeColor: meter.colors.pressed
            strokeWidth: 4
            fillColor: "transparent"
            PathAngleArc { centerX: 13; centerY: 13; radiusX: 10.5; radiusY: 10.5; startAngle: 0; sweepAngle: 360 }
        }
        ShapePath {
            strokeColor: meter.ringColor
            strokeWidth: 4
            capStyle: ShapePath.RoundCap
            fillColor: "transparent"
            PathAngleArc {
                centerX: 13; centerY: 13; radiusX: 10.5; radiusY: 10.5
                startAngle: -90
                sweepAngle: -Math.max(0.5, 360 * meter.share)
                Behavior on sweepAngle { NumberAnimation { duration: Theme.slow } }
            }
        }
    }
}
