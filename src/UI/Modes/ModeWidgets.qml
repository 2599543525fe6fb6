import QtQuick
import Fendrel.Style
import Fendrel.Types

// The widgets that the dock shows in a mode, chosen from all that there are.
SettingsGroup {
    id: group

    required property ModeEditor editor
    readonly property real scaling: Math.max(1, Theme.textScale)

    component Kind: Item {
        id: kind
        required property string widgetID
        required property string title
        required property string detail
        required property string symbol
        required property color accent
        required property bool isChosen
        required property string note
        width: ListView.view.width
        height: words.height + 18
        activeFocusOnTab: true
        Accessible.role: Accessible.CheckBox
        Accessible.name: title
        Accessible.description: note === "" ? detail : detail + ". " + note
        Accessible.checkable: true
        Accessible.checked: isChosen
        Accessible.focusable: true
        Accessible.onToggleAction: toggle()
        Accessible.onPressAction: toggle()
        Keys.onReturnPressed: toggle()
        Keys.onSpacePressed: toggle()
        function toggle() { group.editor.chooseWidget(widgetID, !isChosen) }

        Rectangle {
            anchors.fill: parent
            radius: 9
            color: hover.hovered ? group.colors.hover : "transparent"
        }
        Rectangle {
            id: tile
            anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
            width: Math.round(32 * group.scaling)
            height: width
            radius: Math.round(width * 0.28)
            color: kind.accent
            opacity: kind.note === "" ? 1 : 0.45
            Symbol {
                anchors.centerIn: parent
                name: kind.symbol
                size: Math.round(18 * group.scaling)
                color: group.colors.onTint(kind.accent)
            }
        }
        Column {
            id: words
            anchors { left: tile.right; leftMargin: 12; right: mark.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
            spacing: 1
            Label { colors: group.colors; text: kind.title; font.weight: Font.Medium; width: parent.width; Accessible.ignored: true }
            Label {
                colors: group.colors
                color: group.colors.secondaryText
                text: kind.detail
                font.pixelSize: Theme.textHelp
                wrapMode: Text.Wrap
                width: parent.width
                Accessible.ignored: true
            }
            Label {
                colors: group.colors
                color: group.colors.secondaryText
                visible: kind.note !== ""
                text: kind.note
                font.pixelSize: Theme.textHelp
                wrapMode: Text.Wrap
                width: parent.width
                Accessible.ignored: true
            }
        }
        Rectangle {
            id: mark
            anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
            width: Math.round(22 * group.scaling)
            height: width
            radius: width / 2
            color: kind.isChosen ? group.colors.accent : "transparent"
            border.width: kind.isChosen ? 0 : 2
            border.color: group.colors.control
            Symbol {
                anchors.centerIn: parent
                visible: kind.isChosen
                name: "checkmark"
                size: Math.round(14 * group.scaling)
                color: "white"
            }
        }
        FocusRing { target: kind; targetRadius: 9; gap: -2 }
        HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
        TapHandler { onTapped: kind.toggle() }
    }

    SettingRow {
        colors: group.colors
        label: qsTr("Widgets")
        help: qsTr("Small cards in the dock while you are in this mode.")
        PushButton {
            id: chooser
            colors: group.colors
            text: catalogue.active ? qsTr("Done") : qsTr("Choose…")
            symbol: catalogue.active ? "checkmark" : "square.grid.2x2"
            onClicked: catalogue.active = !catalogue.active
        }
    }
    Item {
        width: parent.width
        height: catalogue.active ? catalogue.height + 28 : 0
        Loader {
            id: catalogue
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 18; topMargin: 14 }
            active: false
            onLoaded: (item as FocusScope).forceActiveFocus(Qt.TabFocusReason)
            sourceComponent: FocusScope {
                implicitHeight: search.height + 8 + kinds.height
                Keys.onEscapePressed: {
                    chooser.forceActiveFocus(Qt.TabFocusReason)
                    catalogue.active = false
                }
                Component.onDestruction: group.editor.searchWidgets("")
                InputField {
                    id: search
                    width: parent.width
                    colors: group.colors
                    focus: true
                    name: qsTr("Search widgets")
                    placeholder: name
                    symbol: "magnifyingglass"
                    onEdited: text => group.editor.searchWidgets(text)
                    Keys.onDownPressed: kinds.forceActiveFocus(Qt.TabFocusReason)
                }
                ListView {
                    id: kinds
                    anchors { top: search.bottom; topMargin: 8; left: parent.left; right: parent.right }
                    height: Math.max(60, Math.min(contentHeight, 340 * group.scaling))
                    model: group.editor.widgetKinds
                    clip: true
                    boundsBehavior: Flickable.StopAtBounds
                    keyNavigationEnabled: true
                    highlightMoveDuration: 0
                    cacheBuffer: 2000
                    Accessible.role: Accessible.List
                    Accessible.name: qsTr("Widgets")
                    section.property: "category"
                    section.delegate: Label {
                        required property string section
                        width: ListView.view.width
                        topPadding: 12
                        bottomPadding: 4
                        leftPadding: 10
                        rightPadding: 10
                        colors: group.colors
                        color: group.colors.secondaryText
                        text: section
                        font.pixelSize: Theme.textHelp
                        font.weight: Font.DemiBold
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }
                    delegate: Kind {}
                    Label {
                        anchors.centerIn: parent
                        visible: kinds.count === 0
                        colors: group.colors
                        color: group.colors.secondaryText
                        text: qsTr("No widget is found")
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                }
            }
        }
    }
    Item {
        width: parent.width
        height: chosen.count === 0 ? 0 : chosen.height + 32
        EntryChips {
            id: chosen
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 18; topMargin: 16 }
            colors: group.colors
            name: qsTr("Widgets")
            entries: group.editor.widgets
            onRemoved: widget => group.editor.chooseWidget(widget, false)
        }
    }
    Connections {
        target: group.editor
        function onModeChanged() { catalogue.active = false }
    }
}
