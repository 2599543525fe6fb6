import QtQuick
import Fendrel.Style
import Fendrel.Types

// Which modes to start with.
Column {
    id: page

    required property FirstRunController firstRun
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 24

    PageHeading {
        colors: page.colors
        title: qsTr("What do you want to get done?")
        text: page.firstRun.isRepeat ? qsTr("These are the modes that Fendrel has ready. Yours stay as they are; what you pick here is added.")
            : qsTr("Pick the modes to start with. Fendrel keeps you in one of them at a time, and asks before you drift into another. Applications can be added and removed later, in the dock.")
    }
    Grid {
        id: grid
        width: parent.width
        columns: width >= 560 * Theme.textScale ? 2 : 1
        spacing: 14
        onColumnsChanged: measure()

        property var rowHeights: []
        function measure() {
            const heights = []
            for (let index = 0; index < cards.count; ++index) {
                const row = Math.floor(index / columns)
                heights[row] = Math.max(heights[row] ?? 0, cards.itemAt(index)?.implicitHeight ?? 0)
            }
            rowHeights = heights
        }

        Repeater {
            id: cards
            model: page.firstRun.templates
            ModeCard {
                required property var modelData
                required property int index
                height: grid.rowHeights[Math.floor(index / grid.columns)] ?? implicitHeight
                onImplicitHeightChanged: grid.measure()
                width: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
                colors: page.colors
                mode: modelData
                isChosen: page.firstRun.chosen.includes(modelData.modeID)
                onToggled: page.firstRun.toggle(modelData.modeID)
            }
        }
    }
}
