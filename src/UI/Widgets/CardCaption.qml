import QtQuick

// What a number is of. What is not new says since when first of all; then as much is said as there is room for.
CardLabel {
    id: caption

    required property var content
    property bool needsCredit: false // rather than all of the rest
    property bool wraps: false       // onto a second line

    readonly property real creditedWidth: measured(credited(least))
    readonly property real leastWidth: measured(least)
    readonly property string least: content.age !== "" ? content.age : content.unit !== "" ? content.unit : content.caption
    readonly property var choices: [credited(whole), ...needsCredit ? [credited(least)] : [], whole, least]
    readonly property string whole: joined(content.age, content.caption)
    readonly property string fitting: choices.find(text => measured(text) <= width) ?? (needsCredit && content.age === "" ? shortened : least)
    readonly property string shortened: joined(metrics.elidedText(least, Text.ElideRight, Math.max(0, width - measured(credited("")) - measured(" · "))), content.credit)

    color: ink.quiet
    text: wraps ? content.age !== "" ? content.age : content.caption : fitting
    wrapMode: wraps ? Text.Wrap : Text.NoWrap
    fontSizeMode: wraps || content.age !== "" ? Text.HorizontalFit : Text.FixedSize
    maximumLineCount: wraps ? 2 : 1
    verticalAlignment: Text.AlignTop

    function joined(...parts): string { return parts.filter(part => part !== "").join(" · ") }
    function credited(text: string): string { return joined(text, content.credit) }
    // It is the height that tells bindings of another font.
    function measured(text: string): real { return metrics.height > 0 ? Math.ceil(metrics.advanceWidth(text)) : 0 }
    FontMetrics {
        id: metrics
        font { family: caption.font.family; pixelSize: caption.ink.textSize; weight: caption.font.weight }
    }
}
