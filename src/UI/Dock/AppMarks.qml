import QtQuick
import Fendrel.Style

// A dot for each window of a running application, up to three. In front the first is a line.
Line {
    id: marks

    required property Colors colors
    required property bool isFront
    required property bool isUrgent
    required property color frontColor
    required property int count

    spacing: 3

    Repeater {
        model: marks.count
        Rectangle {
            required property int index
            property real length: index > 0 || !marks.isFront ? 4 : marks.count > 1 ? 10 : 14
            width: marks.isVertical ? 4 : length
            height: marks.isVertical ? length : 4
            radius: 2
            color: marks.isUrgent ? "#d6303b" : marks.isFront && !Theme.increasesContrast ? marks.frontColor : marks.colors.secondaryText
            Behavior on length { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
        }
    }
}
