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
    required property string note
    required property list<string> sizes
    required property int size

    readonly property var sizeNames: ({ small: qsTr("Small"), medium: qsTr("Medium"), large: qsTr("Large") })
    readonly property WidgetsController widgets: settings.widgets
    readonly property int margin: 18
    readonly property real scaling: Math.max(1, Theme.textScale)

    width: parent?.width ?? 0
    height: head.height + (subject.status === Loader.Ready ? subject.height + 14 : 0)
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: detail + (note === "" ? "" : ". " + note) + (modeNames === "" ? "" : ". " + qsTr("In %1").arg(modeNames))

    Item {
        id: head
        width: parent.width
        height: Math.max(tile.height, words.height, toggle.height) + 26

        Rectangle {
            id: tile
            anchors { left: parent.left; leftMargin: row.margin; verticalCenter: parent.verticalCenter }
            width: Math.round(36 * row.scaling)
            height: width
            radius: Math.round(width * 0.28)
            color: row.accent
            opacity: row.note === "" ? 1 : 0.45
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
            Label {
                colors: row.colors
                color: row.colors.secondaryText
                width: parent.width
                visible: row.note !== ""
                text: row.note
                font.pixelSize: Theme.textHelp
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            TextLink {
                colors: row.colors
                visible: row.needsAccount
                shade: row.isConnected ? row.colors.well : row.colors.tintText(row.colors.accent)
                symbol: row.isConnected ? "checkmark" : "person"
                text: row.account
                Accessible.description: qsTr("Opens the accounts")
                onOpened: row.settings.pane = "accounts"
            }
            Item {
                width: 1
                height: 6
                visible: row.sizes.length > 0
            }
            SettingSlot {
                anchors.left: parent.left
                visible: row.sizes.length > 0
                room: words.width
                Choice {
                    colors: row.colors
                    name: qsTr("Size of %1 in %2").arg(row.title).arg(row.widgets.modeName)
                    labels: {
                        let all = []
                        for (let index = 0; index < row.sizes.length; ++index)
                            all.push(row.sizeNames[row.sizes[index]])
                        return all
                    }
                    current: row.size
                    onChosen: index => row.widgets.setSize(row.widgetID, row.sizes[index])
                }
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
    }
    Loader {
        id: subject
        anchors { top: head.bottom; left: parent.left; leftMargin: tile.width + 14; right: parent.right }
        sourceComponent: row.widgetID === "weather" ? weather : row.widgetID === "ticker" ? ticker : row.widgetID === "calendar" ? calendar : null
        Component {
            id: weather
            WeatherRow { colors: row.colors; settings: row.settings; subjects: row.widgets.subjects }
        }
        Component {
            id: ticker
            TickerRow { colors: row.colors; settings: row.settings; subjects: row.widgets.subjects }
        }
        Component {
            id: calendar
            CalendarRow { colors: row.colors; settings: row.settings; chooser: row.widgets.calendar }
        }
    }
    Rectangle {
        anchors { left: parent.left; leftMargin: row.margin + tile.width + 14; right: parent.right; top: parent.top }
        height: 1
        color: row.colors.line
        visible: row.index > 0
    }
}
