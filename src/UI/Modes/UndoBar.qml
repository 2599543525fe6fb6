import QtQuick
import Fendrel.Style
import Fendrel.Types

// Says what was deleted, and takes it back.
Item {
    id: bar

    required property Colors colors
    required property ModesController modes
    required property real maximumWidth
    readonly property bool isOffered: modes.removedName !== ""
    property string shownName: "" // stays while the bar goes

    readonly property string name: modes.removedName
    onNameChanged: if (name !== "") shownName = name

    width: Math.min(maximumWidth, 18 + Math.ceil(text.implicitWidth) + 14 + button.implicitWidth + 8)
    height: Math.max(button.height, text.implicitHeight) + 14
    visible: opacity > 0
    opacity: isOffered ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text.text

    Shadow { caster: back; casterRadius: back.radius; opacity: 0.35 }
    Rectangle {
        id: back
        anchors.fill: parent
        radius: 14
        color: bar.colors.card
        border.width: 1
        border.color: bar.colors.line
    }
    Label {
        id: text
        anchors { left: parent.left; leftMargin: 18; right: button.left; rightMargin: 14; verticalCenter: parent.verticalCenter }
        colors: bar.colors
        text: qsTr("Deleted %1.").arg(bar.shownName)
        Accessible.ignored: true
    }
    PushButton {
        id: button
        anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
        colors: bar.colors
        text: qsTr("Undo")
        symbol: "arrow.uturn.backward"
        isFilled: true
        isEnabled: bar.isOffered
        onClicked: bar.modes.undoRemove()
    }
}
