import QtQuick

// A switch for something that is on or off.
Item {
    id: toggle

    required property Colors colors
    required property string name
    required property bool isOn

    signal toggled(on: bool)

    implicitWidth: 42
    implicitHeight: 26
    activeFocusOnTab: true
    Accessible.role: Accessible.CheckBox
    Accessible.name: name
    Accessible.checkable: true
    Accessible.checked: isOn
    Accessible.focusable: true
    Accessible.onToggleAction: toggled(!isOn)
    Accessible.onPressAction: toggled(!isOn)

    Keys.onSpacePressed: toggled(!isOn)
    Keys.onReturnPressed: toggled(!isOn)

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: toggle.isOn ? toggle.colors.accent : toggle.colors.pressed
        border.width: toggle.isOn ? 0 : 1
        border.color: toggle.colors.line
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
    Rectangle {
        width: 20
        height: 20
        radius: 10
        y: 3
        x: toggle.isOn ? parent.width - width - 3 : 3
        color: "white"
        border.width: 1
        border.color: "#14000000"
        Behavior on x { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
    }

    FocusRing { target: toggle; targetRadius: 13 }
    TapHandler { onTapped: toggle.toggled(!toggle.isOn) }
}
