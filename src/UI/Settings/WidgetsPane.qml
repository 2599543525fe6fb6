import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of the widgets: all that there are, and which of them each mode has.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors
    readonly property WidgetsController widgets: settings.widgets

    width: parent?.width ?? 0
    spacing: 18

    Item {
        width: parent.width
        height: Math.max(dot.height, intro.height)
        Rectangle {
            id: dot
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            width: Math.round(10 * Math.max(1, Theme.textScale))
            height: width
            radius: width / 2
            color: page.widgets.modeTint
        }
        Label {
            id: intro
            anchors { left: dot.right; leftMargin: 9; right: parent.right }
            colors: page.colors
            color: page.colors.secondaryText
            text: qsTr("Each mode has its own widgets. The switches are those of %1, the mode you are in.").arg(page.widgets.modeName)
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    InputField {
        width: parent.width
        colors: page.colors
        name: qsTr("Search widgets")
        placeholder: qsTr("Search by name, use or mode")
        symbol: "magnifyingglass"
        isClearable: true
        onEdited: text => page.widgets.search(text)
        Component.onDestruction: page.widgets.search("")
    }
    Repeater {
        model: page.widgets.groups
        SettingsGroup {
            id: group
            required property WidgetsModel modelData
            colors: page.colors
            title: modelData.title
            visible: modelData.count > 0
            Repeater {
                model: group.modelData
                WidgetRow {
                    colors: page.colors
                    settings: page.settings
                }
            }
        }
    }
    Nothing {
        colors: page.colors
        topPadding: 60
        visible: page.widgets.found === 0
        text: qsTr("No widget is called that. Perhaps in other words?")
    }
    ResetButton { colors: page.colors; settings: page.settings; pane: "widgets" }
}
