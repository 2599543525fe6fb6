import QtQuick
import Fendrel.Style
import Fendrel.Types

// What there is to tell, beside the bar, with what can be done about it. It stays while the pointer is on it.
BesideWindow {
    id: card
    title: shown.kind === "undo" ? qsTr("Fendrel undo") : qsTr("Fendrel notice")

    required property Colors colors
    required property DockPanel panel
    required property NoticeController notices
    required property bool isTransparent
    required property real rise // pixels by which icons may stand out of the bar, and their labels with them
    required property rect label // of the bar's item that says what it is; empty: none

    readonly property var current: notices.current
    property var shown: current // which stays while the card goes
    onCurrentChanged: {
        if (current.kind === "none")
            return
        shown = current
        if (hover.hovered)
            notices.setHovered(shown.kind, true)
    }

    readonly property int margin: isTransparent ? 22 : 0
    // An edit is made in the dock, which is seen then; the others may come while it hides.
    readonly property bool isWanted: current.kind === "undo" ? panel.isShown : current.kind !== "none" && !panel.isCovered
    readonly property int textWidth: Math.min(Math.ceil(Math.max(text.implicitWidth, detail.implicitWidth)), 360 * Math.max(1, Theme.textScale))
    readonly property bool hasDetail: shown.detail !== ""

    width: sign.x + sign.width + 12 + textWidth + 16 + buttons.width + 8 + 2 * margin
    height: Math.max(48, words.height + 22, buttons.height + 16) + 2 * margin

    readonly property rect bar: panel.bar
    property real aside: 0 // pixels down from the bar's middle

    onIsWantedChanged: {
        if (!isWanted) {
            leave.start()
            return
        }
        leave.stop()
        aside = 0
        giveWay()
        open()
    }
    onWidthChanged: if (isWanted) open()
    onHeightChanged: if (isWanted) open()
    function open() {
        place()
        appear.restart()
    }
    onBarChanged: place()
    onRiseChanged: place()
    onAsideChanged: place()
    onLabelChanged: giveWay()

    // Above the lower edge it is always farther away than labels are. Beside the others it moves up when one comes there,
    // or down where it would not fit, and stays: the pointer may be on its way to it.
    function giveWay() {
        const middle = bar.y + bar.height / 2
        const center = label.y + label.height / 2 - middle
        const away = (label.height + content.height) / 2 + 6
        if (isWanted && panel.edge !== Qt.BottomEdge && label.width > 0 && Math.abs(center - aside) < away)
            aside = center - away < height / 2 + 8 - middle ? center + away : center - away
    }
    function place() {
        if (!isWanted)
            return
        const gap = (panel.edge === Qt.BottomEdge ? 46 + rise : 12) - margin
        const input = Qt.rect(margin, margin, width - 2 * margin, height - 2 * margin)
        panel.openBeside(card, Qt.rect(bar.x + bar.width / 2, bar.y + bar.height / 2 + aside, 0, 0), gap, input)
    }

    Item {
        id: content
        anchors.fill: parent
        anchors.margins: card.margin
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
        LayoutMirroring.childrenInherit: true

        Accessible.role: Accessible.AlertMessage
        Accessible.name: card.shown.text
        Accessible.description: card.shown.detail

        ParallelAnimation {
            id: appear
            NumberAnimation { target: content; property: "opacity"; to: 1; duration: Theme.quick }
            NumberAnimation { target: content; property: "scale"; from: Theme.reducesMotion ? 1 : 0.95; to: 1; duration: Theme.normal; easing.type: Easing.OutCubic }
        }
        SequentialAnimation {
            id: leave
            NumberAnimation { target: content; property: "opacity"; to: 0; duration: Theme.quick }
            ScriptAction { script: card.hide() }
        }

        Shadow { caster: back; casterRadius: back.radius; blur: 18; opacity: 0.35; visible: card.isTransparent }
        Rectangle {
            id: back
            anchors.fill: parent
            radius: card.isTransparent ? 14 : 0
            color: card.colors.card
            border.width: 1
            border.color: Qt.tint(card.colors.card, card.colors.line)
        }

        // Whose it is: an application, a mode, or a mode's color.
        Item {
            id: sign
            readonly property bool isDot: card.shown.icon === "" && card.shown.symbol === ""
            anchors { left: parent.left; leftMargin: isDot ? 16 : 12; verticalCenter: parent.verticalCenter }
            width: isDot ? 10 : Math.round(32 * Math.max(1, Theme.textScale))
            height: width

            AppPicture {
                anchors.fill: parent
                visible: card.shown.icon !== ""
                source: card.shown.icon
                size: sign.width
            }
            Rectangle {
                anchors.fill: parent
                visible: card.shown.icon === ""
                radius: sign.isDot ? width / 2 : Math.round(width * 0.28)
                color: card.shown.tint
                Symbol {
                    anchors.centerIn: parent
                    visible: !sign.isDot
                    name: card.shown.symbol
                    size: Math.round(sign.width * 0.56)
                    color: card.colors.onTint(card.shown.tint)
                }
            }
        }
        Column {
            id: words
            anchors { left: sign.right; leftMargin: 12; verticalCenter: parent.verticalCenter }
            width: card.textWidth
            spacing: 2
            Label {
                id: text
                width: parent.width
                colors: card.colors
                text: card.shown.text
                font.weight: card.hasDetail ? Font.DemiBold : Font.Medium
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.ignored: true
            }
            Label {
                id: detail
                width: parent.width
                visible: card.hasDetail
                colors: card.colors
                color: card.colors.secondaryText
                text: card.shown.detail
                wrapMode: Text.Wrap
                maximumLineCount: 2
                Accessible.ignored: true
            }
        }
        Row {
            id: buttons
            anchors { right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
            spacing: 6
            PushButton {
                visible: card.shown.refusal !== ""
                implicitHeight: Math.max(32, Math.round(32 * Theme.textScale))
                colors: card.colors
                text: card.shown.refusal
                activeFocusOnTab: false
                onClicked: card.notices.refuse(card.shown.kind)
            }
            PushButton {
                implicitHeight: Math.max(32, Math.round(32 * Theme.textScale))
                colors: card.colors
                text: card.shown.action
                tint: card.shown.tint
                isFilled: true
                activeFocusOnTab: false
                onClicked: card.notices.accept(card.shown.kind)
            }
        }
        HoverHandler {
            id: hover
            onHoveredChanged: card.notices.setHovered(card.shown.kind, hovered)
        }
    }
}
