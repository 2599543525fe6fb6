import QtQuick

// A switch for something that is on or off.
Item {
    id: toggle

    required property Colors colors
    required property string name
    required property bool isOn

    signal toggled(on: bool)

    readonly property real scaling: Math.min(1.6, Math.max(1, Theme.textScale))
    readonly property bool isAtEnd: isOn !== LayoutMirroring.enabled

    implicitWidth: Math.round(42 * scaling)
    implicitHeight: Math.round(26 * scaling)
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
        color: toggle.isOn ? hover.hovered ? Qt.lighter(toggle.colors.accent, 1.08) : toggle.colors.accent
             : hover.hovered ? toggle.colors.hover : "transparent"
        border.width: toggle.isOn ? 0 : 1
        border.color: toggle.colors.control
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
    Rectangle {
        readonly property int inset: 4
        width: height
        height: parent.height - 2 * inset
        radius: height / 2
        y: inset
        x: toggle.isAtEnd ? parent.width - width - inset : inset
        color: toggle.isOn ? "white" : toggle.colors.control
        Behavior on x { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
    }

    FocusRing { target: toggle; targetRadius: toggle.height / 2 }
    HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
    TapHandler { onTapped: toggle.toggled(!toggle.isOn) }
}
