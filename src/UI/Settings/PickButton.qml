import QtQuick
import Fendrel.Style

// Shows what is chosen of several things, and opens the list of them.
Item {
    id: button

    required property Colors colors
    required property string name // what is chosen here
    required property string text
    property color dot: "transparent"
    property bool takesFocus: true

    signal opened()

    readonly property int padding: 12
    readonly property bool hasDot: dot.a > 0

    implicitWidth: Math.ceil(words.implicitWidth) + 2 * padding + arrow.width + 8 + (hasDot ? mark.width + 8 : 0)
    implicitHeight: Math.ceil(words.implicitHeight) + 14
    activeFocusOnTab: takesFocus
    Accessible.role: Accessible.ComboBox
    Accessible.name: name
    Accessible.description: text
    Accessible.focusable: takesFocus
    Accessible.onPressAction: opened()
    Keys.onSpacePressed: opened()
    Keys.onReturnPressed: opened()
    Keys.onEnterPressed: opened()
    Keys.onDownPressed: opened()

    Rectangle {
        anchors.fill: parent
        radius: 9
        color: tap.pressed ? button.colors.pressed : hover.hovered ? button.colors.hover : button.colors.field
        border.width: 1
        border.color: button.colors.line
        Behavior on color { ColorAnimation { duration: Theme.quick } }
    }
    Rectangle {
        id: mark
        anchors { left: parent.left; leftMargin: button.padding; verticalCenter: parent.verticalCenter }
        width: Math.round(9 * Theme.textScale)
        height: width
        radius: width / 2
        color: button.dot
        visible: button.hasDot
    }
    Label {
        id: words
        anchors {
            left: button.hasDot ? mark.right : parent.left
            leftMargin: button.hasDot ? 8 : button.padding
            right: arrow.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        colors: button.colors
        text: button.text
        Accessible.ignored: true
    }
    Symbol {
        id: arrow
        anchors { right: parent.right; rightMargin: button.padding - 2; verticalCenter: parent.verticalCenter }
        name: "chevron.down"
        size: Math.round(13 * Theme.textScale)
        color: button.colors.secondaryText
    }
    FocusRing { target: button; targetRadius: 9 }
    HoverHandler { id: hover; cursorShape: Qt.PointingHandCursor }
    TapHandler { id: tap; gesturePolicy: TapHandler.ReleaseWithinBounds; onTapped: button.opened() }
}
