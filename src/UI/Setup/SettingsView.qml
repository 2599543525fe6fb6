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
        { id: "general", name: qsTr("General"), symbol: "gearshape", view: general },
        { id: "dock", name: qsTr("Dock"), symbol: "list.bullet", view: dock },
        { id: "appearance", name: qsTr("Appearance"), symbol: "paintbrush", view: appearance },
        { id: "modes", name: qsTr("Modes"), symbol: "square.stack", view: modes },
        { id: "about", name: qsTr("About"), symbol: "questionmark.circle", view: about },
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
                width: parent.width
                sourceComponent: root.panes[root.current].view
            }
        }
    }

    Component {
        id: general
        Column {
            width: parent?.width ?? 0
            spacing: 18
            SettingsGroup {
                colors: viewColors
                SettingRow {
                    colors: viewColors
                    label: qsTr("Strictness")
                    help: [qsTr("Switching modes during focus never waits."), qsTr("Switching modes during focus waits as long as the mode says."), qsTr("Modes with a wait take at least half a minute to enter during focus.")][root.preferences.strictness]
                    Choice {
                        colors: viewColors
                        name: qsTr("Strictness")
                        labels: [qsTr("Gentle"), qsTr("Balanced"), qsTr("Strict")]
                        current: root.preferences.strictness
                        onChosen: index => root.preferences.strictness = index
                    }
                }
                SettingRow {
                    colors: viewColors
                    label: qsTr("Tidy up when switching")
                    help: qsTr("Hides the applications that don't belong to the new mode.")
                    Toggle { colors: viewColors; name: qsTr("Tidy up when switching"); isOn: root.preferences.tidyOnSwitch; onToggled: on => root.preferences.tidyOnSwitch = on }
                }
                SettingRow {
                    colors: viewColors
                    label: qsTr("Offer to send crash reports")
                    help: qsTr("Asks after a crash, and opens your mail app with the report for you to read first.")
                    Toggle { colors: viewColors; name: qsTr("Offer to send crash reports"); isOn: root.preferences.crashReports; onToggled: on => root.preferences.crashReports = on }
                }
            }
            MessageSettings {
                colors: viewColors
                settings: root.settings
            }
        }
    }

    Component {
        id: dock
        DockSettings {
            colors: viewColors
            settings: root.settings
        }
    }

    Component {
        id: appearance
        Column {
            width: parent.width
            spacing: 18

            Flow {
                width: parent.width
                spacing: 14
                Repeater {
                    model: root.settings.presets
                    LookCard {
                        required property var modelData
                        colors: viewColors
                        look: modelData
                        onChosen: root.settings.choosePreset(modelData.name)
                    }
                }
            }
            SettingsGroup {
                colors: viewColors
                SettingRow {
                    colors: viewColors
                    label: qsTr("Match light and dark mode")
                    help: qsTr("The dock has a look of its own for each, and changes with the desktop.")
                    Toggle { colors: viewColors; name: qsTr("Match light and dark mode"); isOn: root.preferences.matchSystem; onToggled: on => root.preferences.matchSystem = on }
                }
            }
        }
    }

    Component {
        id: modes
        ModeSettings {
            colors: viewColors
            editor: root.settings.modeEditor
        }
    }

    Component {
        id: about
        SettingsGroup {
            colors: viewColors
            SettingRow { colors: viewColors; label: qsTr("Fendrel %1").arg(root.settings.version); help: qsTr("Free software under the GNU General Public License, version 3 or later.") }
            SettingRow { colors: viewColors; label: qsTr("Your data stays here"); help: qsTr("What Fendrel learns about your work never leaves this computer.") }
        }
    }
}
