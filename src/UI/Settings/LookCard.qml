import QtQuick
import Fendrel.Style

// A built-in look of the dock, drawn small.
Item {
    id: card

    required property Colors colors
    required property var look

    signal chosen()

    width: 148
    height: 116
    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: look.label
    Accessible.checkable: true
    Accessible.checked: look.isChosen
    Accessible.focusable: true
    Accessible.onPressAction: chosen()
    Keys.onSpacePressed: chosen()
    Keys.onReturnPressed: chosen()

    Rectangle {
        id: backdrop
        width: parent.width
        height: 84
        radius: 12
        color: card.look.isDark ? "#4a5a78" : "#b9cbe4"
        border.width: card.look.isChosen ? 3 : 1
        border.color: card.look.isChosen ? card.colors.accent : card.colors.line

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 40
            width: 112
            height: 30
            radius: 9
            color: card.colors.faded(card.look.background, card.look.opacity)
            border.width: 1
            border.color: card.look.isDark ? "#24ffffff" : "#1a000000"
            Row {
                anchors.centerIn: parent
                spacing: 6
                Repeater {
                    model: ["#2f7df0", "#f0644f", "#2ea055", "#e89a1c", "#8b5ce6"]
                    Rectangle {
                        required property string modelData
                        width: 15
                        height: 15
                        radius: 4
                        color: modelData
                    }
                }
            }
        }
    }
    Label {
        anchors { top: backdrop.bottom; topMargin: 8; horizontalCenter: parent.horizontalCenter }
        colors: card.colors
        text: card.look.label
        font.weight: card.look.isChosen ? Font.DemiBold : Font.Normal
        Accessible.ignored: true
    }
    FocusRing { target: backdrop; targetRadius: 12; visible: card.activeFocus }
    TapHandler { onTapped: card.chosen() }
}
