import QtQuick

// Text on a card, which says all of it itself to assistive programs.
Text {
    required property CardColors ink

    color: ink.text
    font.pixelSize: ink.textSize
    horizontalAlignment: Text.AlignLeft // said outright, it mirrors with the layout
    verticalAlignment: Text.AlignVCenter
    minimumPixelSize: Math.min(ink.textSize, ink.leastTextSize) // where it shrinks to fit
    elide: Text.ElideRight
    textFormat: Text.PlainText
    renderType: Text.QtRendering
    Accessible.ignored: true
}
