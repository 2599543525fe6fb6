import QtQuick
import Fendrel.Style

// The settings that a search found.
Column {
    id: page

    required property Colors colors
    required property string query
    required property var results

    signal opened(setting: string, pane: string)

    function focusFirst() {
        repeater.itemAt(0)?.forceActiveFocus(Qt.TabFocusReason)
    }

    width: parent?.width ?? 0
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Search results")

    Nothing {
        colors: page.colors
        topPadding: 80
        visible: repeater.count === 0
        text: qsTr("Nothing here is called “%1”. Perhaps in other words?").arg(page.query.trim())
    }
    SettingsGroup {
        colors: page.colors
        visible: repeater.count > 0
        Repeater {
            id: repeater
            model: page.results
            Item {
                id: found
                required property var modelData
                required property int index
                width: parent?.width ?? 0
                height: words.height + 24
                activeFocusOnTab: true
                Accessible.role: Accessible.Button
                Accessible.name: qsTr("%1, in %2").arg(modelData.name).arg(modelData.paneName)
                Accessible.focusable: true
                Accessible.onPressAction: open()
                function open() { page.opened(modelData.setting, modelData.pane) }
                Keys.onReturnPressed: open()
                Keys.onEnterPressed: open()
                Keys.onSpacePressed: open()
                Keys.onDownPressed: repeater.itemAt(index + 1)?.forceActiveFocus(Qt.TabFocusReason)
                Keys.onUpPressed: event => {
                    event.accepted = index > 0
                    repeater.itemAt(index - 1)?.forceActiveFocus(Qt.TabFocusReason)
                }

                Rectangle {
                    anchors { fill: parent; margins: 4 }
                    radius: Theme.radius
                    color: tap.pressed ? page.colors.pressed : hover.hovered ? page.colors.hover : "transparent"
                }
                Column {
                    id: words
                    anchors { left: parent.left; leftMargin: 18; right: arrow.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
                    spacing: 3
                    Label {
                        colors: page.colors
                        color: page.colors.secondaryText
                        width: parent.width
                        visible: found.modelData.setting !== found.modelData.pane
                        text: found.modelData.paneName
                        font.pixelSize: Theme.textSmall
                        Accessible.ignored: true
                    }
                    Label {
                        colors: page.colors
                        width: parent.width
                        text: found.modelData.label
                        textFormat: Text.StyledText
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }
                    Label {
                        colors: page.colors
                        color: page.colors.secondaryText
                        width: parent.width
                        text: found.modelData.help
                        textFormat: Text.StyledText
                        font.pixelSize: Theme.textHelp
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }
                }
                Symbol {
                    id: arrow
                    anchors { right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
                    name: "chevron.right"
                    size: Math.round(16 * Theme.textScale)
                    color: page.colors.secondaryText
                }
                Rectangle {
                    anchors { left: words.left; right: parent.right; top: parent.top }
                    height: 1
                    color: page.colors.line
                    visible: found.index > 0
                }
                FocusRing { target: found; targetRadius: Theme.radius; gap: -3 }
                HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
                TapHandler { id: tap; onTapped: found.open() }
            }
        }
    }
}
