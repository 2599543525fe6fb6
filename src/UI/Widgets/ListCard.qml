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

    signal pressed(address: url)

    readonly property bool isMedium: size === "medium" && !isVertical
    readonly property real beside: width - 18 - number.implicitWidth - 5 - (mark.visible ? mark.width + 4 : 0) // pixels
    readonly property bool isAgeBelow: isMedium && content.age !== "" && caption.leastWidth > beside

    CardFace {
        id: face
        anchors { left: parent.left; top: parent.top }
        width: view.isVertical ? parent.width : Math.min(wanted, Math.round(parent.width * 0.4))
        height: view.isVertical ? Math.min(parent.height, view.width + 2 * view.ink.line) : parent.height
        visible: !view.isMedium
        ink: view.ink
        content: view.content
        symbol: view.symbol
        isBeside: !view.isVertical
        wraps: view.isVertical
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
            width: Math.min(implicitWidth, parent.width - 18 - (mark.visible ? mark.width + 4 : 0))
            ink: view.ink
            text: view.content.headline
            font { pixelSize: Math.round(view.ink.textSize * 1.36); weight: Font.DemiBold }
        }
        CardCaption {
            id: caption
            visible: !view.isAgeBelow
            anchors { left: number.right; leftMargin: 5; right: mark.visible ? mark.left : parent.right; rightMargin: mark.visible ? 4 : 0; baseline: number.baseline }
            ink: view.ink
            content: view.content
        }
        CardMark {
            id: mark
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            ink: view.ink
            content: view.content
        }
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
        onPressed: address => view.pressed(address)
    }
}
