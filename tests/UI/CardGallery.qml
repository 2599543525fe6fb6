import QtQuick
import Fendrel.Style
import Fendrel.Widgets

// A line for each widget: its sizes, and then its other states.
Rectangle {
    id: gallery

    required property var cards
    required property bool isDark
    required property bool isVertical
    required property bool isMirrored
    required property real textScale
    required property real extent

    width: lines.width + 40
    height: lines.height + 40
    color: isDark ? "#222328" : "#e9eaee"
    LayoutMirroring.enabled: isMirrored
    LayoutMirroring.childrenInherit: true
    Component.onCompleted: Theme.textScale = textScale

    Colors { id: look; isDark: gallery.isDark }

    Grid {
        id: lines
        anchors.centerIn: parent
        columns: gallery.isVertical ? 0 : 1
        rows: gallery.isVertical ? 1 : 0
        flow: gallery.isVertical ? Grid.TopToBottom : Grid.LeftToRight
        spacing: 14
        Repeater {
            model: gallery.cards
            Grid {
                id: line
                required property var modelData
                columns: gallery.isVertical ? 1 : 0
                rows: gallery.isVertical ? 0 : 1
                flow: gallery.isVertical ? Grid.LeftToRight : Grid.TopToBottom
                spacing: 10
                Repeater {
                    // A state and a size.
                    model: [[0, "large"], [0, "medium"], [0, "small"], [1, "large"], [1, "medium"], [1, "small"], [2, "medium"], [2, "small"],
                            [3, "medium"], [3, "small"], [4, "medium"], [4, "small"], [5, "medium"], [5, "small"]]
                    WidgetCard {
                        required property int index
                        required property var modelData
                        colors: look
                        content: line.modelData.states[Math.min(modelData[0], line.modelData.states.length - 1)]
                        title: line.modelData.title
                        shortTitle: line.modelData.shortTitle
                        symbol: line.modelData.symbol
                        accent: line.modelData.accent
                        size: modelData[1]
                        isVertical: gallery.isVertical
                        extent: gallery.extent
                    }
                }
            }
        }
    }
}
