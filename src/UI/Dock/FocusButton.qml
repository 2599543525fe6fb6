import QtQuick
import Fendrel.Style
import Fendrel.Types

// Starts and ends a focus session, and shows what remains of it.
DockItem {
    id: button

    required property FocusController focusState
    required property color tint

    readonly property color foreground: focusState.isOn ? colors.onTint(tint) : colors.text
    readonly property string text: !focusState.isOn ? qsTr("Focus") : focusState.remaining === "" ? qsTr("Focused") : focusState.remaining

    // In steps, so that a minute less moves nothing.
    implicitWidth: isVertical ? 36 : Math.ceil((content.implicitWidth + 24) / 12) * 12
    implicitHeight: isVertical && focusState.isOn && focusState.remaining !== "" ? 48 : 36
    tipText: !focusState.isOn ? qsTr("Start a focus session")
           : focusState.remaining === "" ? qsTr("Focus session, until you end it") : qsTr("Focus session, %1 left").arg(focusState.remaining)

    Accessible.role: Accessible.Button
    Accessible.name: tipText

    readonly property real longest: isVertical ? 48 : 132 // with hours and minutes left

    width: implicitWidth
    Behavior on width { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }

    Rectangle {
        anchors.fill: parent
        radius: 12
        color: button.focusState.isOn ? button.tint : button.isPressed ? button.colors.pressed : button.colors.hover
        border.width: button.isHovered && !button.focusState.isOn ? 1 : 0
        border.color: button.colors.line
        scale: button.isPressed ? 0.96 : 1
        Behavior on color { ColorAnimation { duration: Theme.normal } }
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
    }

    Grid {
        id: content
        anchors.centerIn: parent
        columns: button.isVertical ? 1 : 2
        spacing: button.isVertical ? 2 : 7
        horizontalItemAlignment: Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        Symbol {
            name: "scope"
            size: 19
            color: button.foreground
        }
        Label {
            colors: button.colors
            color: button.foreground
            visible: !button.isVertical || (button.focusState.isOn && button.focusState.remaining !== "")
            text: button.isVertical ? button.text.split(" ")[0] : button.text
            font.pixelSize: button.isVertical ? Theme.textSmall : Theme.text
            font.weight: Font.DemiBold
        }
    }
}
