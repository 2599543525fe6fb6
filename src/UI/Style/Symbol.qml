import QtQuick

// One of the program's own line symbols, in any colour.
Image {
    id: symbol

    required property string name
    property color color: "black"
    property int size: 18

    // "#rrggbb" or "#aarrggbb" as text, always with its alpha.
    readonly property string colorText: {
        const digits = color.toString().substring(1)
        return digits.length === 6 ? "ff" + digits : digits
    }

    // What points along a line of text points the other way where lines run from right to left.
    mirror: LayoutMirroring.enabled && /^(arrow|chevron)\.(left|right|uturn\.backward)$/.test(name)
    width: size
    height: size
    sourceSize { width: size * 2; height: size * 2 }
    source: name === "" ? "" : "image://symbol/" + name + "/" + colorText
    fillMode: Image.PreserveAspectFit
    smooth: true
    mipmap: true
    Accessible.ignored: true
}
