import QtQuick
import Fendrel.Style

// In the corner of a card: that something is wrong with what it shows, what it lacks, or how that stands.
Item {
    id: mark

    required property CardColors ink
    required property var content

    property bool isSpelled: false // the card says it in words
    readonly property bool isProblem: content.problem !== ""
    readonly property string sign: isSpelled ? "" : isProblem ? "exclamationmark.triangle" : signs[content.state] ?? ""
    readonly property var signs: ({ disconnected: "key", unset: "plus", unasked: "questionmark.circle", denied: "lock", empty: "minus" })
    readonly property bool isTone: !isSpelled && sign === "" && content.tone !== "neutral"

    property bool isWanted: true
    visible: isWanted && (sign !== "" || isTone)
    implicitWidth: sign !== "" ? 12 : 7
    implicitHeight: implicitWidth

    Symbol {
        visible: mark.sign !== ""
        name: mark.sign
        size: 12
        color: mark.isProblem ? mark.ink.busy : mark.ink.quiet
    }
    Rectangle {
        visible: mark.isTone
        width: 7
        height: 7
        radius: 3.5
        color: mark.ink.dots[mark.content.tone]
    }
}
