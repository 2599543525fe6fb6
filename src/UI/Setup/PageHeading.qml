import QtQuick
import Fendrel.Style

// What a page of the first run is about.
Column {
    id: heading

    required property Colors colors
    required property string title
    required property string text

    width: parent?.width ?? 0
    spacing: 8

    Label {
        colors: heading.colors
        text: heading.title
        font.pixelSize: Theme.headline
        font.weight: Font.Bold
        wrapMode: Text.Wrap
        width: parent.width
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Label {
        colors: heading.colors
        color: heading.colors.secondaryText
        text: heading.text
        font.pixelSize: Theme.textLarge
        lineHeight: 1.25
        wrapMode: Text.Wrap
        width: parent.width
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
