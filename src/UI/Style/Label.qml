import QtQuick

// Text in the program's type.
Text {
    required property Colors colors

    color: colors.text
    font.pixelSize: Theme.text
    horizontalAlignment: Text.AlignLeft // said outright, it mirrors with the layout
    elide: Text.ElideRight
    textFormat: Text.PlainText
    renderType: Text.QtRendering
}
