import QtQuick
import Fendrel.Style
import Fendrel.Types

// The settings: a list of panes, and the chosen one beside it, or what a search found. Changes apply at once.
FocusScope {
    id: root

    required property SettingsController settings

    readonly property var panes: withNames([
        { id: "general", symbol: "gearshape", file: "GeneralPane.qml" },
        { id: "dock", symbol: "dock.rectangle", file: "DockPane.qml" },
        { id: "appearance", symbol: "paintbrush", file: "AppearancePane.qml" },
        { id: "widgets", symbol: "square.grid.2x2", file: "WidgetsPane.qml" },
        { id: "modes", symbol: "square.stack", file: "ModesPane.qml" },
        { id: "accounts", symbol: "person", file: "AccountsPane.qml" },
        { id: "permissions", symbol: "checkmark.shield", file: "PermissionsPane.qml" },
        { id: "about", symbol: "info.circle", file: "AboutPane.qml" },
    ])
    readonly property int current: Math.max(0, panes.findIndex(pane => pane.id === settings.pane))
    readonly property bool isSearching: sidebar.query.trim() !== ""
    property string sought: "" // the setting to be shown, once its row has its place

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Component.onDestruction: settings.isShowingAnswers = false

    function withNames(list: var): var {
        for (const pane of list)
            pane.name = settings.labelOf(pane.id)
        return list
    }

    function openPane(id: string) {
        sidebar.query = ""
        settings.pane = id
        scroller.contentY = 0
    }

    function openSetting(setting: string, pane: string) {
        openPane(pane)
        // The look for dark is there only where the dock has one.
        sought = setting === "darkAppearance" && !settings.preferences.matchSystem ? "matchSystem" : setting
        Window.window?.update()
    }

    function rowOf(setting: string, item: Item): SettingRow {
        const row = item as SettingRow
        if (row && row.setting === setting)
            return row
        for (let index = 0; item && index < item.children.length; ++index) {
            const found = rowOf(setting, item.children[index])
            if (found)
                return found
        }
        return null
    }

    Connections {
        target: root.settings
        function onOpened(setting: string) {
            root.settings.isShowingAnswers = false
            root.openSetting(setting, root.settings.pane)
        }
    }
    Connections {
        target: root.Window.window
        enabled: root.sought !== ""
        function onAfterAnimating() {
            const row = root.rowOf(root.sought, pane.item as Item)
            root.sought = ""
            if (!row)
                return
            row.glow()
            const control = row.nextItemInFocusChain(true)
            for (let item = control; item; item = item.parent) {
                if (item === row)
                    control.forceActiveFocus(Qt.TabFocusReason)
            }
            scroller.show(row, scroller.height / 3)
        }
    }
    Shortcut {
        sequences: [StandardKey.Find]
        enabled: !root.settings.isShowingAnswers
        onActivated: sidebar.search()
    }
    SettingsSearch {
        id: search
        query: sidebar.query
    }
    Colors {
        id: viewColors
        isDark: root.settings.isDark
    }

    Rectangle {
        anchors.fill: parent
        color: viewColors.window
    }
    Sidebar {
        id: sidebar
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: Math.min(Math.max(implicitWidth, 196), parent.width * 0.36)
        enabled: !root.settings.isShowingAnswers // the keyboard stays on the page that is seen
        colors: viewColors
        panes: root.panes
        current: root.isSearching ? -1 : root.current
        onChosen: pane => root.openPane(pane)
        onResultsWanted: results.focusFirst()
        onFirstWanted: {
            const first = search.results[0]
            if (first)
                root.openSetting(first.setting, first.pane)
        }
    }
    ScrollArea {
        id: scroller
        anchors { left: sidebar.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        colors: viewColors
        contentHeight: page.height + 56
        enabled: !root.settings.isShowingAnswers

        Column {
            id: page
            anchors { left: parent.left; right: parent.right; margins: root.width < 640 * Theme.textScale ? 16 : 32 }
            y: 28
            spacing: 18

            Label {
                colors: viewColors
                width: parent.width
                text: root.isSearching ? qsTr("Search") : root.panes[root.current].name
                font.pixelSize: Theme.title
                font.weight: Font.Bold
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            SearchResults {
                id: results
                visible: root.isSearching
                colors: viewColors
                query: sidebar.query
                results: search.results
                onOpened: (setting, pane) => root.openSetting(setting, pane)
            }
            Loader {
                id: pane
                width: parent.width
                visible: !root.isSearching
                readonly property string file: root.panes[root.current].file
                onFileChanged: show()
                Component.onCompleted: show()
                function show() { setSource(file, { settings: root.settings, colors: viewColors }) }
            }
        }
    }
    Loader {
        anchors.fill: parent
        active: root.settings.isShowingAnswers
        sourceComponent: AnswersPage {
            controller: root.settings.answers
            colors: viewColors
            onClosed: root.settings.isShowingAnswers = false
        }
    }
}
