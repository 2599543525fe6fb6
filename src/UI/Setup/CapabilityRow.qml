import QtQuick
import Fendrel.Style
import Fendrel.Types

// How one thing of this system stands, and what can be done about it.
Item {
    id: row

    required property Colors colors
    required property PermissionsModel permissions
    required property string rowID
    required property string title
    required property string help
    required property string standing
    required property string stateLabel
    required property string reason
    required property string remedy
    required property string commandHelp
    required property string command
    required property string icon
    required property var actions

    readonly property string advice: (reason + " " + remedy).trim()
    readonly property int margin: 18
    readonly property bool isWell: standing === "works"
    readonly property bool isWanting: standing === "missing" || standing === "locked"
    readonly property color stateColor: isWell ? colors.well : isWanting ? colors.warning : colors.secondaryText

    width: parent?.width ?? 0
    height: content.height + 28
    Accessible.role: Accessible.Grouping
    Accessible.name: title + ": " + stateLabel
    Accessible.description: [help, advice, commandHelp].join(" ").trim()

    Image {
        id: picture
        anchors { left: parent.left; leftMargin: row.margin; top: content.top }
        visible: row.icon !== ""
        width: visible ? 32 : 0
        height: 32
        sourceSize { width: 64; height: 64 }
        source: row.icon
        asynchronous: true
        mipmap: true
        Accessible.ignored: true
    }
    Column {
        id: content
        anchors {
            left: picture.right
            leftMargin: picture.visible ? 14 : 0
            right: parent.right
            rightMargin: row.margin
        }
        y: 14
        spacing: 3

        Item {
            width: parent.width
            height: Math.max(name.height, chip.height)
            Label {
                id: name
                anchors { left: parent.left; right: chip.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
                colors: row.colors
                text: row.title
                font.weight: Font.Medium
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            Row {
                id: chip
                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                spacing: 6
                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    size: Math.round(15 * Theme.textScale)
                    color: row.stateColor
                    name: row.isWell ? "checkmark" : row.standing === "locked" ? "lock" : row.isWanting ? "exclamationmark.triangle"
                        : row.standing === "absent" ? "minus" : "ellipsis"
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    colors: row.colors
                    color: row.stateColor
                    text: row.stateLabel
                    font.pixelSize: Theme.textHelp
                    font.weight: Font.Medium
                    Accessible.ignored: true
                }
            }
        }
        Repeater {
            model: [row.help, row.advice, row.commandHelp]
            Label {
                required property string modelData
                required property int index
                colors: row.colors
                color: index > 0 && row.isWanting ? row.colors.text : row.colors.secondaryText
                width: content.width
                visible: text !== ""
                text: modelData
                font.pixelSize: Theme.textHelp
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        Item { width: 1; height: 3; visible: box.visible }
        Rectangle {
            id: box
            width: parent.width
            height: commandText.height + 16
            radius: Theme.radius
            color: row.colors.field
            border { width: 1; color: row.colors.line }
            visible: row.command !== ""
            TextEdit {
                id: commandText
                // What a shell reads goes from left to right in every language.
                LayoutMirroring.enabled: false
                anchors { left: parent.left; leftMargin: 10; right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
                horizontalAlignment: TextEdit.AlignLeft
                text: row.command
                textFormat: TextEdit.PlainText
                readOnly: true
                selectByMouse: true
                selectByKeyboard: true
                activeFocusOnTab: row.command !== ""
                wrapMode: TextEdit.Wrap
                color: row.colors.text
                selectionColor: row.colors.accent
                selectedTextColor: "white"
                font { family: "monospace"; pixelSize: Theme.textHelp }
                Accessible.role: Accessible.EditableText
                Accessible.readOnly: true
                Accessible.name: qsTr("Command") + ", " + row.title
            }
            FocusRing { target: commandText; anchors { fill: box; margins: -3 } targetRadius: Theme.radius }
        }
        Item { width: 1; height: 6; visible: buttons.visible }
        Flow {
            id: buttons
            width: parent.width
            spacing: 8
            visible: row.actions.length > 0
            Repeater {
                model: row.actions
                PushButton {
                    required property var modelData
                    property bool isCopied: false
                    colors: row.colors
                    text: isCopied ? qsTr("Copied") : modelData.label
                    Accessible.name: text + ", " + row.title
                    onActiveFocusChanged: if (!activeFocus) isCopied = false
                    onClicked: {
                        row.permissions.act(row.rowID, modelData.id)
                        isCopied = modelData.id === "address" || modelData.id === "command"
                    }
                }
            }
        }
    }
    Rectangle {
        anchors { left: parent.left; leftMargin: row.margin; right: parent.right; bottom: parent.bottom }
        height: 1
        color: row.colors.line
        visible: row.y + row.height < (row.parent?.height ?? 0)
    }
}
