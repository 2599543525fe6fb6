import QtQuick
import Fendrel.Style
import Fendrel.Types

// What stands behind the applications: minimized windows, cards, how the focus stands, the trash.
Line {
    id: section

    required property Colors colors
    required property DockTip tip
    required property DockController dock
    required property FocusController focusState
    required property VerdictController verdict
    required property DockPanel panel
    required property DockMenus menus
    required property CardDrag drag
    required property BarLayout layout
    required property bool isMoving

    readonly property Item center: focusButton // beside which the dock's own menu opens
    readonly property int tileCount: minimized.count + (trash.visible ? 1 : 0) // as large as applications

    readonly property alias cards: widgets

    // Along the bar, with the lines and the room around them. `steady` is without tiles, cards and the verdict's words,
    // and all else at its longest; `current` is everything as it is now.
    readonly property real separators: 9 + 2 * spacing + (minimized.visible ? 9 + 2 * spacing : 0) + (trash.visible ? spacing : 0)
    readonly property real steady: separators + chip.frame + focusButton.longest + meter.length + 2 * spacing
    readonly property real current: separators + focusButton.length + (chip.visible ? chip.length + spacing : 0)
                                  + (meter.visible ? meter.length + spacing : 0)
                                  + minimized.tilesLength + (widgets.visible ? widgets.stripLength + widgets.frame : 0) + (trash.visible ? trash.length : 0)

    MinimizedStrip {
        id: minimized
        colors: section.colors
        tip: section.tip
        isVertical: section.isVertical
        spacing: section.spacing
        dock: section.dock
        menus: section.menus
        iconSize: section.layout.iconSize
        isMoving: section.isMoving
    }

    Separator { colors: section.colors; isVertical: section.isVertical }

    WidgetStrip {
        id: widgets
        colors: section.colors
        tip: section.tip
        isVertical: section.isVertical
        spacing: section.spacing
        panel: section.panel
        dock: section.dock
        menus: section.menus
        drag: section.drag
        layout: section.layout
        isMoving: section.isMoving
    }

    VerdictChip {
        id: chip
        colors: section.colors
        tip: section.tip
        isVertical: section.isVertical
        verdict: section.verdict
        wordsRoom: section.layout.wordsRoom
        size: section.layout.fullPillSize
        onPressed: section.menus.correct(chip)
    }

    FocusButton {
        id: focusButton
        colors: section.colors
        tip: section.tip
        isVertical: section.isVertical
        focusState: section.focusState
        tint: section.dock.tint
        size: section.layout.fullPillSize
        onPressed: section.menus.chooseFocus(focusButton)
        onMenuAsked: section.menus.showMainMenu(focusButton)
    }

    BudgetMeter {
        id: meter
        colors: section.colors
        tip: section.tip
        isVertical: section.isVertical
        focusState: section.focusState
        tint: section.dock.tint
        size: section.layout.fullPillSize
    }

    TrashTile {
        id: trash
        visible: section.dock.trash.isShown
        colors: section.colors
        tip: section.tip
        isVertical: section.isVertical
        dock: section.dock
        iconSize: section.layout.iconSize
        onMenuAsked: section.menus.showTrashMenu(trash)
    }
}
