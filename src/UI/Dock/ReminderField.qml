import QtQuick
import Fendrel.Style
import Fendrel.Types

// A field beside the dock for a new reminder. Return adds it, and what is typed stays for as long as it was not added.
PopupWindow {
    id: popup
    title: qsTr("Fendrel reminder")

    required property Colors colors
    required property bool isTransparent
    property DockPanel view: null
    property Item owner: null

    signal added(title: string)

    readonly property bool isOwned: owner?.visible ?? false
    onIsOwnedChanged: if (!isOwned) dismiss()

    readonly property int margin: isTransparent ? 16 : 0
    width: 300 * Math.max(1, Theme.textScale) + 2 * margin
    height: field.height + 16 + 2 * margin

    function open(panel: DockPanel, item: Item) {
        view = panel
        owner = item
        view.openMenu(popup, item.mapToItem(null, 0, 0, item.width, item.height), 8 - margin)
        field.forceActiveFocus(Qt.TabFocusReason)
        field.selectAll()
        appear.restart()
    }
    function add() {
        if (field.text.trim() === "")
            return
        popup.added(field.text)
        field.text = ""
        dismiss()
    }

    Item {
        id: content
        anchors.fill: parent
        anchors.margins: popup.margin
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
        LayoutMirroring.childrenInherit: true

        NumberAnimation { id: appear; target: content; property: "opacity"; from: 0; to: 1; duration: Theme.quick }
        Shadow { caster: back; casterRadius: back.radius; blur: 14; opacity: 0.35; visible: popup.isTransparent }
        Rectangle {
            id: back
            anchors.fill: parent
            radius: popup.isTransparent ? 14 : 0
            color: popup.colors.card
            border.width: 1
            border.color: Qt.tint(popup.colors.card, popup.colors.line)
        }
        InputField {
            id: field
            anchors { left: parent.left; right: button.left; margins: 8; verticalCenter: parent.verticalCenter }
            colors: popup.colors
            name: qsTr("New reminder")
            placeholder: qsTr("To be done today")
            maximumLength: 200
            onAccepted: popup.add()
        }
        PushButton {
            id: button
            anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
            colors: popup.colors
            text: qsTr("Add")
            isFilled: true
            isEnabled: field.text.trim() !== ""
            activeFocusOnTab: false
            onClicked: popup.add()
        }
    }
}
