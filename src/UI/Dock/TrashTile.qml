import QtQuick
import Fendrel.Style
import Fendrel.Types

// The trash: files go there, and applications out of the mode.
DockItem {
    id: tile

    required property DockController dock
    required property int iconSize

    implicitWidth: isVertical ? iconSize + 16 : iconSize + 6
    implicitHeight: isVertical ? iconSize + 6 : iconSize + 16
    tipText: qsTr("Trash")
    targetText: qsTr("Move to the Trash")

    Accessible.role: Accessible.Button
    Accessible.name: dock.trash.isEmpty ? qsTr("Trash, empty") : qsTr("Trash")

    function takes(load: var): bool {
        targetText = load.isOurs ? qsTr("Remove from %1").arg(dock.modeName) : qsTr("Move to the Trash")
        return load.isOurs ? dock.apps.isInMode(load.app) : load.files.length > 0
    }
    onReceived: load => {
        if (load.isOurs)
            dock.actions.remove(load.app, dock.modeID)
        else
            dock.trash.add(load.files)
    }
    onPressed: dock.trash.open()

    Rectangle {
        anchors.centerIn: parent
        width: tile.iconSize
        height: width
        radius: Math.min(13, width * 0.3)
        color: tile.isTarget ? tile.colors.faded(tile.colors.accent, 0.35) : tile.isPressed ? tile.colors.pressed : tile.colors.hover
        border.width: tile.isHovered || tile.isTarget ? 1 : 0
        border.color: tile.colors.line
        scale: tile.isPressed ? 0.94 : 1
        Behavior on color { ColorAnimation { duration: Theme.quick } }
        Behavior on scale { NumberAnimation { duration: Theme.quick } }

        Symbol {
            anchors.centerIn: parent
            name: tile.dock.trash.isEmpty ? "trash" : "trash.full"
            size: Math.round(tile.iconSize * 0.56)
            color: tile.colors.text
        }
    }
}
