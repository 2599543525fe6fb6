import QtQuick
import Fendrel.Style
import Fendrel.Types

// The gate: covers what was stopped and asks what to do about it.
FocusScope {
    id: root

    required property GatePanel panel
    required property DockController dock
    required property FocusController focusState
    required property GateController gate

    readonly property bool isOpen: panel.isOpen

    Colors {
        id: gateColors
        isDark: root.panel.isDark
    }

    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Stay focused, or switch?")

    // What is shown stays as it was while the panel fades.
    property string name: ""
    property string note: ""
    property string icon: ""
    property bool isSite: false
    property string ownerName: ""
    property string ownerSymbol: ""
    property color ownerTint: "gray"
    function take() {
        if (!gate.isOpen)
            return
        name = gate.name
        note = gate.note
        icon = panel.icon
        isSite = gate.isSite
        ownerName = gate.ownerName
        ownerSymbol = gate.ownerSymbol
        ownerTint = gate.ownerTint
    }
    Connections {
        target: root.gate
        function onChanged() { root.take() }
    }
    Connections {
        target: root.panel
        function onAttentionAsked() {
            if (!reason.activeFocus)
                reason.forceActiveFocus(Qt.ActiveWindowFocusReason)
        }
    }

    Keys.onEscapePressed: gate.stay()
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) gate.switchToOwner() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) gate.switchToOwner() }

    states: State {
        name: "open"
        when: root.isOpen
        PropertyChanges { target: cover; opacity: 1 }
        PropertyChanges { target: card; opacity: 1; scale: 1 }
    }
    transitions: [
        Transition {
            to: "open"
            // The cover is there at once: what is stopped is not to be used for another moment.
            NumberAnimation { target: card; property: "opacity"; duration: Theme.normal }
            NumberAnimation { target: card; property: "scale"; duration: Theme.slow; easing.type: Easing.OutBack; easing.overshoot: 1.2 }
        },
        Transition {
            from: "open"
            SequentialAnimation {
                NumberAnimation { targets: [cover, card]; properties: "opacity,scale"; duration: Theme.quick }
                ScriptAction { script: root.panel.closed() }
            }
        }
    ]

    Rectangle {
        id: cover
        anchors.fill: parent
        opacity: 0
        // Where nothing blends windows, the cover hides what is under it altogether.
        color: root.panel.isTransparent ? (gateColors.isDark ? "#d6101114" : "#d62a2c33") : (gateColors.isDark ? "#101114" : "#2a2c33")

        // Nothing reaches what is under it.
        MouseArea { anchors.fill: parent; acceptedButtons: Qt.AllButtons; hoverEnabled: true; onWheel: wheel => wheel.accepted = true }
    }

    Shadow { caster: card; casterRadius: panelBody.radius; blur: 40; drop: 14; opacity: 0.5 * card.opacity; scale: card.scale }

    Item {
        id: card

        // In the middle of what the dock leaves of the display, and closer where that is low.
        readonly property rect area: root.panel.cardArea
        readonly property bool isLow: area.height < 510
        readonly property int rowHeight: isLow ? 38 : 44

        x: Math.round(area.x + (area.width - width) / 2)
        y: Math.round(area.y + (area.height - height) / 2)
        width: Math.min(440, area.width - 24)
        height: body.implicitHeight + 2 * body.anchors.margins
        opacity: 0
        scale: 0.94

        Rectangle {
            id: panelBody
            anchors.fill: parent
            radius: 22
            color: gateColors.card
            border.width: 1
            border.color: gateColors.line
        }

        Column {
            id: body
            anchors.fill: parent
            anchors.margins: card.isLow ? 20 : 28
            spacing: 0

            Item {
                width: parent.width
                height: picture.height + (card.isLow ? 4 : 12)
                Image {
                    id: picture
                    anchors.centerIn: parent
                    width: card.isLow ? 52 : 72
                    height: width
                    sourceSize { width: 144; height: 144 }
                    source: root.icon
                    asynchronous: true
                    smooth: true
                    mipmap: true
                }
                // A site has no icon of its own.
                Rectangle {
                    visible: root.isSite
                    anchors.fill: picture
                    anchors.margins: card.isLow ? 2 : 4
                    radius: width * 0.24
                    color: gateColors.field
                    Symbol {
                        anchors.centerIn: parent
                        name: "globe"
                        size: Math.round(parent.width * 0.6)
                        color: gateColors.text
                    }
                }
                Rectangle {
                    visible: root.ownerSymbol !== ""
                    x: picture.x + picture.width - 20
                    y: picture.y + picture.height - 26
                    width: 30
                    height: 30
                    radius: 15
                    color: root.ownerTint
                    border.width: 3
                    border.color: gateColors.card
                    Symbol {
                        anchors.centerIn: parent
                        name: root.ownerSymbol
                        size: 15
                        color: gateColors.onTint(root.ownerTint)
                    }
                }
            }

            Label {
                colors: gateColors
                width: parent.width
                topPadding: card.isLow ? 6 : 10
                horizontalAlignment: Text.AlignHCenter
                text: qsTr("Stay focused, or switch?")
                font.pixelSize: Theme.title
                font.weight: Font.Bold
            }
            Label {
                colors: gateColors
                color: gateColors.secondaryText
                width: parent.width
                topPadding: 6
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                maximumLineCount: 3
                font.pixelSize: Theme.text
                // Of a long name the middle goes, so that the sentence keeps its end.
                text: root.ownerName === "" ? shortName.elidedText
                    : root.note === "" ? qsTr("%1 belongs to %2").arg(shortName.elidedText).arg(shortOwner.elidedText)
                    : qsTr("%1 (%2) belongs to %3").arg(shortName.elidedText).arg(shortNote.elidedText).arg(shortOwner.elidedText)

                TextMetrics { id: shortName; font.pixelSize: Theme.text; elide: Text.ElideMiddle; elideWidth: body.width * 0.8; text: root.name }
                TextMetrics { id: shortNote; font.pixelSize: Theme.text; elide: Text.ElideMiddle; elideWidth: body.width * 0.8; text: root.note }
                TextMetrics { id: shortOwner; font.pixelSize: Theme.text; elide: Text.ElideMiddle; elideWidth: body.width * 0.6; text: root.ownerName }
            }
            Label {
                colors: gateColors
                color: gateColors.warning
                width: parent.width
                visible: text !== ""
                topPadding: 6
                horizontalAlignment: Text.AlignHCenter
                font.weight: Font.DemiBold
                text: root.gate.usedUp
            }

            Item { width: 1; height: card.isLow ? 12 : 20 }

            InputField {
                id: reason
                width: parent.width
                colors: gateColors
                placeholder: qsTr("Why switch now?")
                focus: true
                text: root.gate.reason
                onEdited: text => root.gate.reason = text
                KeyNavigation.tab: stayButton
            }

            Item { width: 1; height: card.isLow ? 8 : 14 }

            PushButton {
                id: stayButton
                width: parent.width
                height: card.rowHeight
                colors: gateColors
                isFilled: true
                tint: root.dock.tint
                symbol: "arrow.uturn.backward"
                text: qsTr("Stay in %1").arg(root.dock.modeName)
                onClicked: root.gate.stay()
            }

            Item { width: 1; height: card.isLow ? 6 : 8 }

            PushButton {
                width: parent.width
                height: card.rowHeight
                colors: gateColors
                isEnabled: root.ownerName !== ""
                symbol: "arrow.right"
                text: root.gate.isSwitching ? qsTr("Switching in %1").arg(root.focusState.pendingSeconds) : qsTr("Switch to %1").arg(root.ownerName)
                detail: root.gate.isSwitching || root.gate.wait <= 0 ? "" : qsTr("(%1 s wait)").arg(root.gate.wait)
                Accessible.description: root.gate.isSwitching ? hint.text : ""
                onClicked: root.gate.switchToOwner()
            }
            Label {
                id: hint
                colors: gateColors
                color: gateColors.secondaryText
                width: parent.width
                height: card.isLow ? 20 : 22
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: Theme.textSmall
                text: qsTr("Each extra press cuts the wait")
                opacity: root.gate.isSwitching ? 1 : 0
                Behavior on opacity { NumberAnimation { duration: Theme.quick } }
            }

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 8
                PushButton {
                    width: (body.width - 8) / 2
                    colors: gateColors
                    text: qsTr("Allow once")
                    onClicked: root.gate.allowOnce()
                }
                PushButton {
                    width: (body.width - 8) / 2
                    colors: gateColors
                    text: qsTr("Add to %1").arg(root.dock.modeName)
                    onClicked: root.gate.addToMode()
                }
            }
        }
    }
}
