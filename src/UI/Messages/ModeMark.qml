import QtQuick
import Fendrel.Style

// A mode's symbol on its tint.
Rectangle {
    id: mark

    required property Colors colors
    required property string symbol
    required property color tint

    radius: width / 2
    color: tint
    Accessible.ignored: true

    Symbol {
        anchors.centerIn: parent
        name: mark.symbol
        size: Math.round(mark.width * 0.52)
        color: mark.colors.onTint(mark.tint)
    }
}
