import QtQuick

// Text in the program's type.
Text {
    required property Colors colors

    color: colors.text
    font.pixelSize: Theme.text
    elide: Text.ElideRight
    textFormat: Text.PlainText
    renderType: Text.QtRendering
}
