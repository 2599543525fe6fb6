import QtQuick
import Fendrel.Style
import Fendrel.Types

// A widget of the catalogue: what it shows, the modes that have it, and the switch for the current one.
FocusScope {
    id: row

    required property Colors colors
    required property SettingsController settings
    required property int index
    required property string widgetID
    required property string title
    required property string detail
    required property string symbol
    required property color accent
    required property var modes
    required property string modeNames
    required property bool isChosen
    required property bool needsAccount
    required property bool isConnected
    required property string account

    readonly property WidgetsController widgets: settings.widgets
    readonly property int margin: 18
    readonly property real scaling: Math.max(1, Theme.textScale)

    width: parent?.width ?? 0
    height: Math.max(tile.height, words.height) + 26
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: modeNames === "" ? detail : detail + ". " + qsTr("In %1").arg(modeNames)

    Rectangle {
        id: tile
        anchors { left: parent.left; leftMargin: row.margin; verticalCenter: parent.verticalCenter }
        width: Math.round(36 * row.scaling)
        height: width
        radius: Math.round(width * 0.28)
        color: row.accent
        Symbol {
            anchors.centerIn: parent
            name: row.symbol
            size: Math.round(20 * row.scaling)
            color: row.colors.onTint(row.accent)
        }
    }
    Column {
        id: words
        anchors { left: tile.right; leftMargin: 14; right: toggle.left; rightMargin: 14; verticalCenter: parent.verticalCenter }
        spacing: 2
        Flow {
            width: parent.width
            spacing: 7
            Label {
                id: name
                colors: row.colors
                width: Math.min(implicitWidth, parent.width)
                text: row.title
                font.weight: Font.Medium
                Accessible.ignored: true
            }
            Row {
                height: name.height
                spacing: 4
                visible: row.modes.length > 0
                Repeater {
                    model: row.modes
                    Rectangle {
                        required property var modelData
                        anchors.verticalCenter: parent?.verticalCenter
                        width: Math.round(9 * row.scaling)
                        height: width
                        radius: width / 2
                        color: modelData.tint
                    }
                }
            }
            Label {
                height: name.height
                colors: row.colors
                color: row.colors.secondaryText
                width: Math.min(implicitWidth, parent.width)
                visible: row.modeNames !== ""
                text: row.modeNames
                font.pixelSize: Theme.textHelp
                verticalAlignment: Text.AlignVCenter
                Accessible.ignored: true
            }
        }
        Label {
            colors: row.colors
            color: row.colors.secondaryText
            width: parent.width
            text: row.detail
            font.pixelSize: Theme.textHelp
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Item {
            id: link
            anchors.left: parent.left
            visible: row.needsAccount
            width: Math.min(parent.width, accountMark.width + 6 + accountText.implicitWidth + 2)
            height: Math.max(accountMark.height, accountText.height) + 2
            activeFocusOnTab: visible
            Accessible.role: Accessible.Link
            Accessible.name: row.account
            Accessible.description: qsTr("Opens the accounts")
            Accessible.focusable: true
            Accessible.onPressAction: open()
            Keys.onReturnPressed: open()
            Keys.onSpacePressed: open()
            readonly property color shade: row.isConnected ? row.colors.well : row.colors.tintText(row.colors.accent)
            function open() { row.settings.pane = "accounts" }
            Symbol {
                id: accountMark
                anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                name: row.isConnected ? "checkmark" : "person"
                size: Math.round(13 * row.scaling)
                color: link.shade
            }
            Label {
                id: accountText
                anchors { left: accountMark.right; leftMargin: 6; right: parent.right; verticalCenter: parent.verticalCenter }
                colors: row.colors
                color: link.shade
                text: row.account
                font.pixelSize: Theme.textHelp
                font.underline: hover.hovered
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            FocusRing { target: link; targetRadius: 4; gap: 2 }
            HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
            TapHandler { onTapped: link.open() }
        }
    }
    Toggle {
        id: toggle
        anchors { right: parent.right; rightMargin: row.margin; verticalCenter: parent.verticalCenter }
        colors: row.colors
        name: qsTr("%1 in %2").arg(row.title).arg(row.widgets.modeName)
        isOn: row.isChosen
        onToggled: on => row.widgets.choose(row.widgetID, on)
    }
    Rectangle {
        anchors { left: words.left; right: parent.right; top: parent.top }
        height: 1
        color: row.colors.line
        visible: row.index > 0
    }
}
