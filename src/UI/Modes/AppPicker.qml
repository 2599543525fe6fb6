import QtQuick
import Fendrel.Style
import Fendrel.Types

// Installed applications to add, found by their names. Return takes the first, or the one that the arrows led to.
FocusScope {
    id: picker

    required property Colors colors
    required property EntriesModel candidates

    signal searched(words: string)
    signal chosen(bundleID: string)
    signal closed()

    readonly property real scaling: Math.max(1, Theme.textScale)
    readonly property int rowHeight: Math.round(40 * scaling)
    implicitHeight: field.height + 8 + results.height

    Component.onDestruction: searched("")
    Keys.onEscapePressed: closed()

    InputField {
        id: field
        width: parent.width
        colors: picker.colors
        focus: true
        name: qsTr("Search applications")
        placeholder: name
        symbol: "magnifyingglass"
        onEdited: text => picker.searched(text)
        Keys.onDownPressed: results.forceActiveFocus(Qt.TabFocusReason)
        onAccepted: (results.itemAtIndex(0) as Candidate)?.take()
    }

    component Candidate: Item {
        id: candidate
        required property string entryID
        required property string name
        required property string icon
        width: ListView.view.width
        height: picker.rowHeight
        Accessible.role: Accessible.ListItem
        Accessible.name: name
        Accessible.focusable: true
        Accessible.onPressAction: take()
        Keys.onReturnPressed: take()
        Keys.onSpacePressed: take()
        function take() { picker.chosen(entryID) }

        Rectangle {
            anchors.fill: parent
            radius: 8
            color: candidate.activeFocus ? picker.colors.accent : hover.hovered ? picker.colors.hover : "transparent"
        }
        Image {
            id: picture
            anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
            width: Math.round(24 * picker.scaling)
            height: width
            sourceSize { width: picture.width * 2; height: picture.width * 2 }
            source: candidate.icon
            asynchronous: true
            mipmap: true
        }
        Label {
            anchors { left: picture.right; leftMargin: 10; right: mark.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
            colors: picker.colors
            color: candidate.activeFocus ? "white" : picker.colors.text
            text: candidate.name
            Accessible.ignored: true
        }
        Symbol {
            id: mark
            anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
            name: "plus"
            size: Math.round(15 * picker.scaling)
            visible: hover.hovered || candidate.activeFocus
            color: candidate.activeFocus ? "white" : picker.colors.secondaryText
        }
        HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
        TapHandler { onTapped: candidate.take() }
    }

    ListView {
        id: results
        anchors.top: field.bottom
        anchors.topMargin: 8
        width: parent.width
        height: picker.rowHeight * Math.max(1, Math.min(5.5, count))
        model: picker.candidates
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        activeFocusOnTab: true
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Installed applications")
        delegate: Candidate {}
        Keys.onUpPressed: event => {
            if (currentIndex <= 0)
                field.forceActiveFocus(Qt.BacktabFocusReason)
            else
                event.accepted = false
        }

        Label {
            anchors.centerIn: parent
            visible: results.count === 0
            colors: picker.colors
            color: picker.colors.secondaryText
            text: qsTr("No other application is found")
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
