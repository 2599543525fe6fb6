import QtQuick
import Fendrel.Style

// A built-in mode to choose: its symbol, its name, and the applications found for it.
Item {
    id: card

    required property Colors colors
    required property var mode
    required property bool isChosen

    signal toggled()

    implicitHeight: Math.max(badge.height + 36, words.height + 32)
    activeFocusOnTab: true
    Accessible.role: Accessible.CheckBox
    Accessible.name: mode.name
    Accessible.description: exists ? qsTr("You have it already") : applications
    Accessible.checkable: true
    Accessible.checked: isChosen
    Accessible.focusable: true
    Accessible.onPressAction: toggled()
    Accessible.onToggleAction: toggled()

    readonly property bool exists: mode.exists
    readonly property real scaling: Math.max(1, Theme.textScale) // of pictures
    readonly property string applications: mode.apps.length === 0 ? qsTr("Web sites only, so far") : mode.apps.slice(0, 3).join(", ")

    Keys.onSpacePressed: toggled()
    Keys.onReturnPressed: toggled()

    Rectangle {
        id: body
        anchors.fill: parent
        radius: 16
        color: card.colors.card
        border.width: card.isChosen ? 2 : 1
        border.color: card.isChosen ? card.mode.tint : hover.hovered ? card.colors.faded(card.mode.tint, 0.5) : card.colors.line
        scale: tap.pressed ? 0.985 : 1
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
        Behavior on border.color { ColorAnimation { duration: Theme.quick } }
    }

    Rectangle {
        id: badge
        anchors { left: parent.left; leftMargin: 16; verticalCenter: parent.verticalCenter }
        width: Math.round(48 * card.scaling)
        height: width
        radius: width * 0.29
        color: card.isChosen ? card.mode.tint : card.colors.faded(card.mode.tint, 0.14)
        Behavior on color { ColorAnimation { duration: Theme.normal } }
        Symbol {
            anchors.centerIn: parent
            size: Math.round(25 * card.scaling)
            name: card.mode.symbol
            color: card.isChosen ? card.colors.onTint(card.mode.tint) : card.colors.tintText(card.mode.tint)
        }
    }

    Column {
        id: words
        anchors { left: badge.right; leftMargin: 14; right: check.left; rightMargin: 10; verticalCenter: parent.verticalCenter }
        spacing: 6

        Label {
            colors: card.colors
            text: card.mode.name
            font.pixelSize: Theme.textLarge + 1
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            width: parent.width
            Accessible.ignored: true
        }
        Flow {
            width: parent.width
            spacing: 5
            visible: card.mode.icons.length > 0 && !card.exists
            Repeater {
                model: card.mode.icons.slice(0, 6)
                Image {
                    required property string modelData
                    width: Math.round(20 * card.scaling)
                    height: width
                    sourceSize { width: 2 * width; height: 2 * width }
                    source: modelData
                    asynchronous: true
                    smooth: true
                    mipmap: true
                }
            }
        }
        Label {
            colors: card.colors
            color: card.colors.secondaryText
            visible: card.mode.icons.length === 0 || card.exists
            text: card.exists ? qsTr("You have it already") : card.applications
            font.pixelSize: Theme.textHelp
            wrapMode: Text.Wrap
            width: parent.width
            Accessible.ignored: true
        }
    }

    Rectangle {
        id: check
        opacity: card.exists ? 0.45 : 1
        anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
        width: Math.round(24 * card.scaling)
        height: width
        radius: width / 2
        color: card.isChosen ? card.mode.tint : "transparent"
        border.width: card.isChosen ? 0 : 1.5
        border.color: card.colors.control
        Symbol {
            anchors.centerIn: parent
            visible: card.isChosen
            name: "checkmark"
            size: Math.round(15 * card.scaling)
            color: card.colors.onTint(card.mode.tint)
        }
    }

    FocusRing { target: card; targetRadius: 16 }

    HoverHandler { id: hover; cursorShape: card.exists ? Qt.ArrowCursor : Qt.PointingHandCursor }
    TapHandler { id: tap; onTapped: card.toggled() }
}
