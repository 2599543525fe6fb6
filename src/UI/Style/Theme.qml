pragma Singleton

import QtQuick

// Sizes, times and type that all views share. Colours are in Colors, because two looks can be on screen at once.
QtObject {
    // Set by the application: the user asks the desktop for less motion.
    property bool reducesMotion: false
    // The same: for more contrast.
    property bool increasesContrast: false

    readonly property int unit: 4

    readonly property int radiusSmall: 6
    readonly property int radius: 10
    readonly property int radiusLarge: 18

    readonly property int textSmall: 11
    readonly property int text: 13
    readonly property int textLarge: 15
    readonly property int title: 20
    readonly property int headline: 26

    readonly property int quick: reducesMotion ? 0 : 110
    readonly property int normal: reducesMotion ? 0 : 190
    readonly property int slow: reducesMotion ? 0 : 320
}
