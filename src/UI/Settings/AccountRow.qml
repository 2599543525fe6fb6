import QtQuick
import Fendrel.Style
import Fendrel.Types

// A service: what it is for, whether it is connected, and the field for its key once that is wanted.
FocusScope {
    id: row

    required property Colors colors
    required property AccountsController accounts
    required property int index
    required property string name
    required property string use
    required property string letter
    required property color tint
    required property string standing
    required property bool isConnected
    required property bool busy
    required property bool isTesting
    required property string news // how a test of the key went
    required property bool isRefused
    property bool isOpen: false

    readonly property int margin: 18
    readonly property real scaling: Math.max(1, Theme.textScale)
    readonly property bool isNarrow: width < 560 * scaling

    width: parent?.width ?? 0
    height: content.height + 28
    Accessible.role: Accessible.Grouping
    Accessible.name: name
    Accessible.description: standing

    function open() {
        isOpen = true
        key.forceActiveFocus(Qt.TabFocusReason)
    }
    function close() {
        key.text = ""
        isOpen = false
        if (activeFocus)
            opener.forceActiveFocus(Qt.TabFocusReason)
    }
    component Standing: Item {
        id: line
        property alias text: caption.text
        property string sign
        property color shade
        width: parent.width
        height: caption.height
        Accessible.name: text
        Symbol {
            id: symbol
            name: line.sign
            anchors.left: parent.left
            y: (caption.height / Math.max(1, caption.lineCount) - height) / 2
            visible: name !== ""
            size: Math.round(13 * Math.max(1, Theme.textScale))
            color: line.shade
        }
        Label {
            id: caption
            anchors { left: symbol.visible ? symbol.right : parent.left; leftMargin: symbol.visible ? 5 : 0; right: parent.right }
            colors: row.colors
            color: line.shade
            font.pixelSize: Theme.textHelp
            font.weight: symbol.visible ? Font.Medium : Font.Normal
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    Connections {
        target: row.accounts
        // A refused key stays, for another try.
        function onSaved(index: int) {
            if (index === row.index && row.isOpen)
                row.close()
        }
    }

    Keys.onEscapePressed: event => {
        event.accepted = isOpen
        if (isOpen)
            close()
    }

    Column {
        id: content
        anchors { left: parent.left; right: parent.right; margins: row.margin }
        y: 14
        spacing: 12

        Item {
            width: parent.width
            id: head
            readonly property real headHeight: Math.max(mark.height, words.height)
            height: row.isNarrow ? headHeight + 10 + buttons.height : Math.max(headHeight, buttons.height)

            Rectangle {
                id: mark
                anchors.left: parent.left
                y: (head.headHeight - height) / 2
                width: Math.round(36 * row.scaling)
                height: width
                radius: width / 2
                color: row.colors.faded(row.tint, 0.18)
                Label {
                    anchors.centerIn: parent
                    colors: row.colors
                    text: row.letter
                    font.pixelSize: Theme.textLarge
                    font.weight: Font.Bold
                    Accessible.ignored: true
                }
            }
            Column {
                id: words
                anchors { left: mark.right; leftMargin: 14; right: row.isNarrow ? parent.right : buttons.left; rightMargin: row.isNarrow ? 0 : 14 }
                y: (head.headHeight - height) / 2
                spacing: 2
                Label {
                    colors: row.colors
                    width: parent.width
                    text: row.name
                    font.weight: Font.Medium
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
                Label {
                    colors: row.colors
                    color: row.colors.secondaryText
                    width: parent.width
                    text: row.use
                    font.pixelSize: Theme.textHelp
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                Standing {
                    visible: row.news === "" && row.standing !== "" && (row.busy || row.accounts.problem === "") // the pane says what is wrong with all
                    text: row.standing
                    sign: row.isConnected && !row.busy && !row.isTesting ? "checkmark" : ""
                    shade: sign === "" ? row.colors.secondaryText : row.colors.well
                    Accessible.role: Accessible.StaticText
                }
                Standing {
                    visible: row.news !== ""
                    text: row.news
                    sign: row.isRefused ? "info.circle" : "checkmark"
                    shade: row.isRefused ? row.colors.warning : row.colors.well
                    Accessible.role: Accessible.AlertMessage // it comes by itself
                }
            }
            Flow {
                id: buttons
                readonly property real line: opener.implicitWidth + (row.isConnected ? test.implicitWidth + remove.implicitWidth + 2 * spacing : 0)
                anchors.right: parent.right
                width: Math.min(Math.ceil(line), parent.width)
                y: parent.height - (row.isNarrow ? height : (parent.height + height) / 2)
                spacing: 8
                PushButton {
                    id: test
                    colors: row.colors
                    visible: row.isConnected
                    isEnabled: !row.busy && !row.isTesting
                    text: qsTr("Test")
                    Accessible.description: qsTr("Asks %1 whether it takes the key").arg(row.name)
                    onClicked: row.accounts.test(row.index)
                }
                PushButton {
                    id: remove
                    colors: row.colors
                    visible: row.isConnected
                    isEnabled: !row.busy
                    text: qsTr("Remove…")
                    Accessible.description: row.name
                    onClicked: row.accounts.askToRemove(row.index)
                }
                PushButton {
                    id: opener
                    colors: row.colors
                    isEnabled: !row.busy && (row.isOpen || row.accounts.hasKeyring)
                    text: row.isOpen ? qsTr("Cancel") : row.isConnected ? qsTr("Change Key…") : qsTr("Connect…")
                    Accessible.description: row.name
                    onClicked: row.isOpen ? row.close() : row.open()
                }
            }
        }

        Flow {
            width: parent.width
            visible: row.isOpen
            spacing: 8
            InputField {
                id: key
                width: Math.max(Math.min(parent.width, 180 * row.scaling), parent.width - paste.width - save.width - page.width - 24)
                colors: row.colors
                isSecret: true
                maximumLength: 4096
                name: qsTr("Key of %1").arg(row.name)
                placeholder: qsTr("Paste the key here")
                enabled: !row.busy
                onAccepted: row.accounts.save(row.index, text)
            }
            PushButton {
                id: paste
                colors: row.colors
                text: qsTr("Paste")
                isEnabled: !row.busy
                onClicked: {
                    key.text = row.accounts.clipboardText()
                    key.forceActiveFocus(Qt.OtherFocusReason)
                }
            }
            PushButton {
                id: save
                colors: row.colors
                text: qsTr("Save")
                isFilled: true
                isEnabled: !row.busy && key.text.trim() !== ""
                onClicked: row.accounts.save(row.index, key.text)
            }
            PushButton {
                id: page
                colors: row.colors
                text: qsTr("Get a Key…")
                symbol: "globe"
                Accessible.description: qsTr("Opens a page of %1 in your browser").arg(row.name)
                onClicked: row.accounts.openKeyPage(row.index)
            }
        }
    }
    Rectangle {
        anchors { left: parent.left; leftMargin: row.margin; right: parent.right; top: parent.top }
        height: 1
        color: row.colors.line
        visible: row.index > 0
    }
}
