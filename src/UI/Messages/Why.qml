import QtQuick
import Fendrel.Style

// Why a message is urgent.
Row {
    id: why

    required property Colors colors
    required property string text
    property real room: 200 // pixels

    visible: text !== ""
    spacing: 5

    Symbol {
        id: bell
        name: "bell.badge"
        size: 14
        color: why.colors.warning
        anchors.verticalCenter: parent.verticalCenter
    }
    Label {
        colors: why.colors
        color: why.colors.warning
        text: why.text
        width: Math.min(Math.ceil(implicitWidth), why.room - bell.width - why.spacing)
        font.pixelSize: 12
        font.weight: Font.DemiBold
        anchors.verticalCenter: parent.verticalCenter
    }
}
