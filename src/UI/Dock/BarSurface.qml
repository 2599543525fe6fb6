import QtQuick
import Fendrel.Style
import Fendrel.Types

// What is seen of the bar, which grows with the row of applications; the bar itself keeps its place.
Item {
    id: view

    required property Colors colors
    required property DockPanel panel
    required property DockController dock
    required property Item bar
    required property Wave wave
    required property bool isVertical
    readonly property rect area: Qt.rect(surface.x, surface.y, surface.width, surface.height)

    Shadow {
        caster: surface
        casterRadius: surface.radius
        opacity: view.dock.shadow
        visible: view.panel.isTransparent
    }

    Rectangle {
        id: surface
        readonly property int growth: view.wave.after - view.wave.before
        x: view.bar.x + (view.isVertical ? 0 : view.wave.before)
        y: view.bar.y + (view.isVertical ? view.wave.before : 0)
        width: view.bar.width + (view.isVertical ? 0 : growth)
        height: view.bar.height + (view.isVertical ? growth : 0)
        radius: Math.round(Math.min(view.dock.cornerRadius, width / 2, height / 2))
        color: view.colors.faded(view.dock.background, view.panel.isTransparent && !Theme.increasesContrast ? view.dock.opacity : 1)
        border.width: Theme.increasesContrast ? 2 : 1
        readonly property color line: Theme.increasesContrast ? view.colors.text : view.colors.faded(view.colors.text, view.dock.border)
        border.color: view.panel.isTransparent ? line : Qt.tint(view.dock.background, line)
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
}
