import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of the modes: which there are, and the way to the window that edits them.
Column {
    id: pane

    required property SettingsController settings
    required property Colors colors
    readonly property ModesController modes: settings.modes
    readonly property real scaling: Math.max(1, Theme.textScale)

    width: parent?.width ?? 0
    spacing: 18

    component ModeRow: FocusScope {
        id: row
        required property int index
        required property string modeID
        required property string name
        required property string symbol
        required property color tint
        required property string hotKey
        required property int appCount
        required property int siteCount
        readonly property string counts: qsTr("%n application(s)", "", appCount) + ", " + qsTr("%n web site(s)", "", siteCount)

        width: parent?.width ?? 0
        height: words.height + 24
        activeFocusOnTab: true
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Edit %1").arg(name)
        Accessible.description: counts
        Accessible.focusable: true
        Accessible.onPressAction: open()
        Keys.onReturnPressed: open()
        Keys.onSpacePressed: open()
        function open() { pane.modes.openWindow(modeID) }

        Rectangle {
            anchors { fill: parent; margins: 4 }
            radius: Theme.radius
            color: tap.pressed ? pane.colors.pressed : hover.hovered ? pane.colors.hover : "transparent"
        }
        Rectangle {
            id: tile
            anchors { left: parent.left; leftMargin: 18; verticalCenter: parent.verticalCenter }
            width: Math.round(32 * pane.scaling)
            height: width
            radius: Math.round(width * 0.28)
            color: row.tint
            Symbol {
                anchors.centerIn: parent
                name: row.symbol
                size: Math.round(18 * pane.scaling)
                color: pane.colors.onTint(row.tint)
            }
        }
        Column {
            id: words
            anchors { left: tile.right; leftMargin: 14; right: key.left; rightMargin: 14; verticalCenter: parent.verticalCenter }
            spacing: 2
            Label { colors: pane.colors; text: row.name; font.weight: Font.Medium; width: parent.width; Accessible.ignored: true }
            Label {
                colors: pane.colors
                color: pane.colors.secondaryText
                text: row.counts
                font.pixelSize: Theme.textHelp
                wrapMode: Text.Wrap
                width: parent.width
                Accessible.ignored: true
            }
        }
        Label {
            id: key
            anchors { right: arrow.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
            colors: pane.colors
            color: pane.colors.secondaryText
            text: row.hotKey
            Accessible.ignored: true
        }
        Symbol {
            id: arrow
            anchors { right: parent.right; rightMargin: 18; verticalCenter: parent.verticalCenter }
            name: "chevron.right"
            size: Math.round(14 * pane.scaling)
            color: pane.colors.secondaryText
        }
        Rectangle {
            anchors { left: words.left; right: parent.right; top: parent.top }
            height: 1
            color: pane.colors.line
            visible: row.index > 0
        }
        FocusRing { target: row; targetRadius: Theme.radius; gap: -4 }
        HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
        TapHandler { id: tap; onTapped: row.open() }
    }

    SettingsGroup {
        colors: pane.colors
        Repeater {
            model: pane.modes.list
            ModeRow {}
        }
    }
    PushButton {
        anchors.left: parent.left
        colors: pane.colors
        text: qsTr("Edit Modes…")
        symbol: "pencil"
        onClicked: pane.modes.openWindow("")
    }
}
