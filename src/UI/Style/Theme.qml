pragma Singleton

import QtQuick

// Sizes, times and type that all views share. Colours are in Colors, because two looks can be on screen at once.
QtObject {
    // Set by the application: the user asks the desktop for less motion.
    property bool reducesMotion: false
    // The same: for more contrast.
    property bool increasesContrast: false
    // The same: for larger or smaller text. What surrounds text grows with it.
    property real textScale: 1

    readonly property int unit: 4

    readonly property int radiusSmall: 6
    readonly property int radius: 10
    readonly property int radiusLarge: 18

    readonly property int textSmall: Math.round(11 * textScale)
    readonly property int textHelp: Math.round(12 * textScale)
    readonly property int text: Math.round(13 * textScale)
    readonly property int textLarge: Math.round(15 * textScale)
    readonly property int title: Math.round(20 * textScale)
    readonly property int headline: Math.round(26 * textScale)

    // Buttons, fields and choices in a row have one height.
    function controlHeight(textHeight: real): int { return Math.max(34, Math.ceil(textHeight) + 18) }

    readonly property int quick: reducesMotion ? 0 : 110
    readonly property int normal: reducesMotion ? 0 : 190
    readonly property int slow: reducesMotion ? 0 : 320
}
