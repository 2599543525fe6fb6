import QtQuick
import Fendrel.Style

// A learned answer: the thing, how it was judged and when, and its mode, which can be changed.
Item {
    id: row

    required property Colors colors
    required property bool isWide // there is room for columns
    required property int judgementWidth
    required property string key
    required property string name
    required property string what
    required property string icon
    required property string modeName
    required property color tint
    required property string judged
    required property string date
    required property int index
    readonly property bool isCurrent: ListView.isCurrentItem && ListView.view.activeFocus
    function together(parts: list<string>, between: string): string {
        let text = ""
        for (const part of parts) {
            if (part !== "")
                text += (text === "" ? "" : between) + part
        }
        return text
    }
    readonly property string shownMode: modeName === "" ? qsTr("No mode") : modeName

    signal menuWanted(from: Item)
    signal forgotten()

    implicitHeight: Math.max(icons.height, words.height, isWide ? judgement.height : 0, mode.height) + 20
    Accessible.role: Accessible.ListItem
    Accessible.name: together([name, what, shownMode, judged, date], ", ")
    Accessible.description: qsTr("Return changes the mode, Delete forgets the answer.")
    Accessible.focusable: true
    Accessible.onPressAction: openMenu()

    function openMenu() { menuWanted(mode) }

    Rectangle {
        anchors { fill: parent; margins: 2 }
        radius: 9
        color: hover.hovered ? row.colors.hover : "transparent"
        border.width: row.isCurrent ? 2 : 0
        border.color: row.colors.accent
    }
    Rectangle {
        anchors { left: words.left; right: parent.right; bottom: parent.bottom }
        height: 1
        color: row.colors.line
    }
    Item {
        id: icons
        anchors { left: parent.left; leftMargin: 14; verticalCenter: parent.verticalCenter }
        width: Math.round(28 * Math.max(1, Theme.textScale))
        height: width
        Image {
            anchors.fill: parent
            sourceSize { width: 2 * icons.width; height: 2 * icons.height }
            source: row.icon
            asynchronous: true
            mipmap: true
            visible: row.icon !== ""
        }
        Symbol {
            anchors.centerIn: parent
            name: "globe"
            size: Math.round(parent.width * 0.75)
            color: row.colors.secondaryText
            visible: row.icon === ""
        }
    }
    Column {
        id: words
        anchors {
            left: icons.right
            leftMargin: 12
            right: row.isWide ? judgement.left : mode.left
            rightMargin: 12
            verticalCenter: parent.verticalCenter
        }
        spacing: 1
        Label {
            width: parent.width
            colors: row.colors
            text: row.name
            font.weight: Font.Medium
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            colors: row.colors
            color: row.colors.secondaryText
            text: row.isWide ? row.what : row.together([row.what, row.judged, row.date], " · ")
            visible: text !== ""
            font.pixelSize: Theme.textHelp
            wrapMode: row.isWide ? Text.NoWrap : Text.Wrap
            maximumLineCount: 3
            Accessible.ignored: true
        }
    }
    Column {
        id: judgement
        anchors { right: mode.left; rightMargin: 16; verticalCenter: parent.verticalCenter }
        width: row.judgementWidth
        spacing: 1
        visible: row.isWide
        Label {
            width: parent.width
            colors: row.colors
            color: row.colors.secondaryText
            text: row.judged
            font.pixelSize: Theme.textHelp
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            colors: row.colors
            color: row.colors.secondaryText
            text: row.date
            visible: text !== ""
            font.pixelSize: Theme.textHelp
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    PickButton {
        id: mode
        anchors { right: forget.left; rightMargin: 6; verticalCenter: parent.verticalCenter }
        width: Math.min(Math.round(140 * Theme.textScale), row.width * 0.4)
        colors: row.colors
        name: qsTr("Mode of %1").arg(row.name)
        text: row.shownMode
        dot: row.tint
        takesFocus: false // the row has it: Tab leaves the list
        onOpened: row.openMenu()
    }
    Item {
        id: forget
        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        width: Math.round(32 * Math.max(1, Theme.textScale))
        height: width
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Forget %1").arg(row.name)
        Accessible.onPressAction: row.forgotten()
        Rectangle {
            anchors.fill: parent
            radius: 8
            color: forgetHover.hovered ? row.colors.pressed : "transparent"
        }
        Symbol {
            anchors.centerIn: parent
            name: "trash"
            size: Math.round(16 * Theme.textScale)
            color: forgetHover.hovered ? row.colors.grave : row.colors.secondaryText
        }
        HoverHandler { id: forgetHover; cursorShape: Qt.PointingHandCursor }
        TapHandler { onTapped: row.forgotten() }
    }
    HoverHandler { id: hover }
}
