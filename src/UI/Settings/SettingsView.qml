import QtQuick
import Fendrel.Style
import Fendrel.Types

// The settings: a list of panes, and the chosen one beside it. Changes apply at once.
FocusScope {
    id: root

    required property SettingsController settings
    readonly property Preferences preferences: settings.preferences

    Colors {
        id: viewColors
        isDark: root.settings.isDark
    }

    readonly property var panes: [
        { id: "general", name: qsTr("General"), symbol: "gearshape", file: "GeneralPane.qml" },
        { id: "dock", name: qsTr("Dock"), symbol: "list.bullet", file: "DockPane.qml" },
        { id: "appearance", name: qsTr("Appearance"), symbol: "paintbrush", file: "AppearancePane.qml" },
        { id: "widgets", name: qsTr("Widgets"), symbol: "square.stack", file: "WidgetsPane.qml" },
        { id: "modes", name: qsTr("Modes"), symbol: "square.stack", file: "ModesPane.qml" },
        { id: "accounts", name: qsTr("Accounts"), symbol: "person", file: "AccountsPane.qml" },
        { id: "permissions", name: qsTr("Permissions"), symbol: "checkmark", file: "PermissionsPane.qml" },
        { id: "about", name: qsTr("About"), symbol: "questionmark.circle", file: "AboutPane.qml" },
    ]
    // A pane that has no page yet leads to the first.
    readonly property int current: Math.max(0, panes.findIndex(pane => pane.id === settings.pane))

    Rectangle {
        anchors.fill: parent
        color: viewColors.window
    }

    Rectangle {
        id: sidebar
        width: 196
        height: parent.height
        color: viewColors.hover

        Column {
            x: 12
            y: 20
            width: parent.width - 24
            spacing: 2
            Accessible.role: Accessible.PageTabList
            Accessible.name: qsTr("Settings")

            Repeater {
                model: root.panes
                Item {
                    id: tab
                    required property var modelData
                    required property int index
                    readonly property bool isCurrent: root.current === index
                    width: parent.width
                    height: 36
                    activeFocusOnTab: true
                    Accessible.role: Accessible.PageTab
                    Accessible.name: modelData.name
                    Accessible.selected: isCurrent
                    Accessible.focusable: true
                    Accessible.onPressAction: open()
                    function open() { root.settings.pane = modelData.id }
                    Keys.onReturnPressed: open()
                    Keys.onSpacePressed: open()
                    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

                    Rectangle {
                        anchors.fill: parent
                        radius: 9
                        color: tab.isCurrent ? viewColors.accent : tabHover.hovered ? viewColors.hover : "transparent"
                        Behavior on color { ColorAnimation { duration: Theme.quick } }
                    }
                    Symbol {
                        x: 10
                        anchors.verticalCenter: parent.verticalCenter
                        name: tab.modelData.symbol
                        color: tab.isCurrent ? "white" : viewColors.secondaryText
                    }
                    Label {
                        x: 38
                        anchors.verticalCenter: parent.verticalCenter
                        colors: viewColors
                        color: tab.isCurrent ? "white" : viewColors.text
                        text: tab.modelData.name
                        font.weight: tab.isCurrent ? Font.DemiBold : Font.Normal
                    }
                    FocusRing { target: tab; targetRadius: 9 }
                    HoverHandler { id: tabHover }
                    TapHandler {
                        onTapped: {
                            if (scroller.focused)
                                scroller.focused.focus = false // a field that is left takes over what was typed in it
                            tab.open()
                        }
                    }
                }
            }
        }
    }

    Flickable {
        id: scroller

        // What the keyboard goes to is to be seen.
        readonly property Item focused: Window.activeFocusItem
        onFocusedChanged: {
            let parent = focused
            let whole = focused // with what belongs to it, as a list below a field
            while (parent && parent !== page) {
                if (parent instanceof FocusScope)
                    whole = parent
                parent = parent.parent
            }
            if (!parent)
                return
            const top = whole.mapToItem(contentItem, 0, 0).y
            const wanted = Math.max(top + whole.height + 40 - height, Math.min(top - 40, contentY))
            contentY = Math.max(0, Math.min(contentHeight - height, wanted))
        }

        anchors { left: sidebar.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        contentHeight: page.height + 56
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: page
            x: 32
            y: 28
            width: parent.width - 64
            spacing: 18

            Label {
                colors: viewColors
                text: root.panes[root.current].name
                font.pixelSize: 22
                font.weight: Font.Bold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Loader {
                id: pane
                width: parent.width
                readonly property string file: root.panes[root.current].file
                onFileChanged: show()
                Component.onCompleted: show()
                function show() { setSource(file, { settings: root.settings, colors: viewColors }) }
            }
        }
    }
}
