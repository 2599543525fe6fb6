import QtQuick

// A button with a text and perhaps a symbol: filled with a tint, or quiet.
Item {
    id: button

    required property Colors colors
    required property string text
    property string symbol: ""
    property color tint: colors.accent
    property bool isFilled: false
    property string detail: "" // said after the text, quieter
    property bool isEnabled: true

    signal clicked()

    readonly property int padding: 4 * Theme.unit
    readonly property real beside: (symbol === "" ? 0 : mark.width + content.spacing)
                                   + (detail === "" ? 0 : Math.ceil(detailText.implicitWidth) + content.spacing)

    implicitWidth: Math.ceil(caption.implicitWidth) + beside + 2 * padding
    implicitHeight: Theme.controlHeight(caption.implicitHeight)
    width: Math.min(implicitWidth, (parent as SettingSlot)?.room ?? implicitWidth)
    opacity: isEnabled ? 1 : 0.45
    activeFocusOnTab: isEnabled || activeFocus // what has the keyboard keeps its place

    readonly property color foreground: isFilled ? colors.onTint(tint) : colors.text

    Accessible.role: Accessible.Button
    Accessible.name: detail === "" ? text : text + " " + detail
    Accessible.focusable: true
    Accessible.onPressAction: press()

    function press() {
        if (isEnabled)
            clicked()
    }

    Keys.onSpacePressed: event => { if (!event.isAutoRepeat) press() }
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) press() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) press() }

    Rectangle {
        id: body
        anchors.fill: parent
        radius: Theme.radius
        color: button.isFilled ? button.tint : tap.pressed ? button.colors.pressed : hover.hovered ? button.colors.hover : "transparent"
        border.width: button.isFilled ? 0 : 1
        border.color: button.colors.line
        scale: tap.pressed ? 0.98 : 1

        Behavior on color { ColorAnimation { duration: Theme.quick } }
        Behavior on scale { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: button.foreground
            opacity: button.isFilled ? (tap.pressed ? 0.16 : hover.hovered ? 0.09 : 0) : 0
            Behavior on opacity { NumberAnimation { duration: Theme.quick } }
        }
    }

    Row {
        id: content
        anchors.centerIn: parent
        spacing: 2 * Theme.unit

        Symbol {
            id: mark
            name: button.symbol
            size: Math.round(17 * Theme.textScale)
            color: button.foreground
            visible: button.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
        }
        Label {
            id: caption
            width: Math.min(Math.ceil(implicitWidth), button.width - button.beside - 2 * button.padding)
            colors: button.colors
            color: button.foreground
            text: button.text
            font.weight: button.isFilled ? Font.DemiBold : Font.Medium
            anchors.verticalCenter: parent.verticalCenter
            Accessible.ignored: true
        }
        Label {
            id: detailText
            colors: button.colors
            color: button.foreground
            opacity: 0.72
            text: button.detail
            visible: text !== ""
            anchors.verticalCenter: parent.verticalCenter
            Accessible.ignored: true
        }
    }

    FocusRing { target: button; targetRadius: Theme.radius }

    HoverHandler { id: hover; enabled: button.isEnabled; cursorShape: Qt.PointingHandCursor }
    TapHandler {
        id: tap
        enabled: button.isEnabled
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: button.press()
    }
}
