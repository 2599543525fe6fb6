import QtQuick
import Fendrel.Style
import Fendrel.Types

// What would happen with the modes as they are: where each application of the last day would go.
SettingsGroup {
    id: group

    required property ModesController modes
    readonly property real scaling: Math.max(1, Theme.textScale)

    component Seen: Item {
        id: seen
        required property string bundleID
        required property string name
        required property string icon
        required property string seen
        required property string place
        required property string reason
        required property string symbol
        required property color tint
        required property bool isUndecided
        readonly property real half: (width - 18 - picture.width - 12 - 12 - 18) / 2

        width: parent?.width ?? 0
        height: Math.max(words.height, verdict.height) + 18
        Accessible.role: Accessible.ListItem
        Accessible.name: qsTr("%1: %2").arg(name).arg(place)
        Accessible.description: reason

        Image {
            id: picture
            anchors { left: parent.left; leftMargin: 18; verticalCenter: parent.verticalCenter }
            width: Math.round(28 * group.scaling)
            height: width
            sourceSize { width: picture.width * 2; height: picture.width * 2 }
            source: seen.icon
            asynchronous: true
            mipmap: true
        }
        Column {
            id: words
            anchors { left: picture.right; leftMargin: 12; verticalCenter: parent.verticalCenter }
            width: seen.half
            spacing: 1
            Label { colors: group.colors; text: seen.name; width: parent.width; Accessible.ignored: true }
            Label {
                colors: group.colors
                color: group.colors.secondaryText
                text: seen.seen
                font.pixelSize: Theme.textHelp
                width: parent.width
                Accessible.ignored: true
            }
        }
        Column {
            id: verdict
            anchors { right: parent.right; rightMargin: 18; verticalCenter: parent.verticalCenter }
            width: seen.half
            spacing: 1
            Row {
                spacing: 6
                Symbol {
                    id: mark
                    anchors.verticalCenter: parent.verticalCenter
                    visible: seen.symbol !== ""
                    name: seen.symbol
                    size: Math.round(15 * group.scaling)
                    color: group.colors.tintText(seen.tint)
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(Math.ceil(implicitWidth), seen.half - (mark.visible ? mark.width + 6 : 0))
                    colors: group.colors
                    color: seen.isUndecided ? group.colors.secondaryText : group.colors.text
                    text: seen.place
                    font.weight: seen.isUndecided ? Font.Normal : Font.Medium
                    Accessible.ignored: true
                }
            }
            Label {
                colors: group.colors
                color: group.colors.secondaryText
                text: seen.reason
                font.pixelSize: Theme.textHelp
                width: parent.width
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
    }

    SettingRow {
        colors: group.colors
        label: qsTr("What would happen")
        help: rows.count > 0 ? qsTr("Where the applications that you used in the last day would go. Changes show at once.")
                             : qsTr("The applications that you use show here, with the mode that each would go to.")
    }
    Column {
        width: parent.width
        topPadding: rows.count > 0 ? 6 : 0
        bottomPadding: topPadding
        Accessible.role: Accessible.List
        Accessible.name: qsTr("What would happen")
        Repeater {
            id: rows
            model: group.modes.dryRun
            Seen {}
        }
    }
}
