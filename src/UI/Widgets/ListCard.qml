import QtQuick
import Fendrel.Style

// A number, and the lines that it counts.
Item {
    id: view

    required property CardColors ink
    required property var content
    required property string symbol
    required property string size
    required property bool isVertical
    required property var ticked // identifiers

    signal pressed(address: url)
    signal toggled(task: string, on: bool)
    signal additionAsked()

    readonly property bool canAdd: content.form === "tasks"

    readonly property bool isMedium: size === "medium" && !isVertical
    readonly property real beside: width - 18 - number.implicitWidth - 5 - (mark.visible ? mark.width + 4 : 0) // pixels
    readonly property bool isAgeBelow: isMedium && content.age !== "" && caption.leastWidth > beside

    CardFace {
        id: face
        anchors { left: parent.left; top: parent.top }
        width: view.isVertical ? parent.width : Math.min(wanted + (add.visible ? add.width + 6 : 0), Math.round(parent.width * 0.4))
        height: view.isVertical ? Math.min(parent.height, view.width + 2 * view.ink.line) : parent.height
        visible: !view.isMedium
        ink: view.ink
        content: view.content
        symbol: view.symbol
        isBeside: !view.isVertical
        wraps: view.isVertical
        isCornerTaken: add.visible
    }

    // All of it in one line, over the list.
    Item {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: view.ink.line + 4
        visible: view.isMedium

        Symbol {
            id: symbol
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: view.symbol
            size: 13
            color: view.ink.mark
            opacity: view.content.isLoading ? 0.55 : 1
            Behavior on opacity { NumberAnimation { duration: Theme.normal } }
        }
        CardLabel {
            id: number
            anchors { left: symbol.right; leftMargin: 5; verticalCenter: parent.verticalCenter } // 18 in all
            width: Math.min(implicitWidth, parent.width - 18 - (mark.visible ? mark.width + 4 : 0) - (add.visible ? add.width + 4 : 0))
            ink: view.ink
            text: view.content.headline
            font { pixelSize: Math.round(view.ink.textSize * 1.36); weight: Font.DemiBold }
        }
        CardCaption {
            id: caption
            visible: !view.isAgeBelow
            anchors { left: number.right; leftMargin: 5; right: mark.visible ? mark.left : parent.right; rightMargin: mark.visible ? 4 : add.visible ? add.width + 4 : 0; baseline: number.baseline }
            ink: view.ink
            content: view.content
        }
        CardMark {
            id: mark
            anchors { right: parent.right; rightMargin: add.visible ? add.width + 5 : 0; verticalCenter: parent.verticalCenter }
            ink: view.ink
            content: view.content
        }
    }

    CardButton {
        id: add
        anchors { left: parent.left; leftMargin: (view.isMedium ? view.width : face.width) - width; top: parent.top; topMargin: view.isMedium ? Math.round((header.height - height) / 2) : 0 }
        visible: view.canAdd && view.width >= 2.6 * view.ink.line // else a press on the card does it
        ink: view.ink
        symbol: "plus"
        name: qsTr("Add a reminder")
        onPressed: view.additionAsked()
    }

    CardLabel {
        id: age
        anchors { left: parent.left; right: parent.right; top: header.bottom }
        height: view.isAgeBelow ? view.ink.line : 0
        visible: view.isAgeBelow
        ink: view.ink
        color: view.ink.quiet
        text: view.content.age
        fontSizeMode: Text.HorizontalFit
    }

    CardRows {
        anchors {
            left: view.isVertical || view.isMedium ? parent.left : face.right
            leftMargin: view.isVertical || view.isMedium ? 0 : 14
            right: parent.right
            top: view.isVertical ? face.bottom : view.isMedium ? age.bottom : parent.top
            topMargin: view.isVertical ? 6 : 0
            bottom: parent.bottom
        }
        ink: view.ink
        rows: view.content.rows
        isNarrow: view.isVertical
        ticked: view.ticked
        onPressed: address => view.pressed(address)
        onToggled: (task, on) => view.toggled(task, on)
    }
}
