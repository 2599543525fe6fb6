import QtQuick
import Fendrel.Style
import Fendrel.Types

// The first run: a person picks the modes to start with.
FocusScope {
    id: root

    required property FirstRunController firstRun

    Colors {
        id: viewColors
        isDark: root.firstRun.isDark
    }

    property var chosen: firstRun.starters
    function toggle(modeID: string) {
        chosen = chosen.includes(modeID) ? chosen.filter(other => other !== modeID) : [...chosen, modeID]
    }

    Rectangle {
        anchors.fill: parent
        color: viewColors.window
    }

    Column {
        id: heading
        x: 40
        y: 36
        width: parent.width - 80
        spacing: 8

        Label {
            colors: viewColors
            text: qsTr("What do you want to get done?")
            font.pixelSize: Theme.headline
            font.weight: Font.Bold
            width: parent.width
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            colors: viewColors
            color: viewColors.secondaryText
            text: qsTr("Pick the modes to start with. Fendrel keeps you in one of them at a time, and asks before you drift into another. Applications can be added and removed later, in the dock.")
            font.pixelSize: Theme.textLarge
            lineHeight: 1.25
            wrapMode: Text.Wrap
            width: parent.width
        }
    }

    Flickable {
        id: scroller
        anchors { left: parent.left; right: parent.right; top: heading.bottom; bottom: footer.top; topMargin: 22 }
        contentHeight: grid.height + 8
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        // Below the scroller's edge nobody sees where the keyboard is.
        function reveal(item: Item) {
            const room = 6
            contentY = Math.max(item.y + item.height + room - height, Math.min(Math.max(0, item.y - room), contentY))
        }

        Grid {
            id: grid
            x: 40
            columns: 2
            spacing: 14

            Repeater {
                model: root.firstRun.templates

                ModeCard {
                    id: card
                    required property var modelData
                    width: (scroller.width - 80 - 14) / 2
                    colors: viewColors
                    mode: modelData
                    isChosen: root.chosen.includes(modelData.modeID)
                    onToggled: root.toggle(modelData.modeID)
                    onActiveFocusChanged: if (activeFocus) scroller.reveal(card)
                }
            }
        }
    }

    Item {
        id: footer
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 84

        Rectangle { width: parent.width; height: 1; color: viewColors.line }

        Label {
            x: 40
            anchors.verticalCenter: parent.verticalCenter
            colors: viewColors
            color: viewColors.secondaryText
            text: qsTr("%n mode(s) chosen", "", root.chosen.length)
        }
        PushButton {
            anchors { right: parent.right; rightMargin: 40; verticalCenter: parent.verticalCenter }
            width: 160
            height: 44
            colors: viewColors
            isFilled: true
            isEnabled: root.chosen.length > 0
            focus: true
            text: qsTr("Start")
            onClicked: root.firstRun.finish(root.chosen)
        }
    }
}
