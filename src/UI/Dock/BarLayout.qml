import QtQuick
import Fendrel.Style

// How a bar fits its display. Cards go a size down first; icons shrink next, as long as that costs them little; then the
// verdict's words, then icons as far as they go; then the pills, which lose their names; what still does not fit scrolls,
// cards and applications before the modes. Everything else keeps its place. Sizes follow from the longest that an item can
// be, so that they stay when only a text changes.
QtObject {
    required property real room        // pixels along the edge, for everything in the bar
    required property real steady      // of what neither shrinks nor scrolls, at its longest; without cards
    required property real current     // of all but modes and applications, as it is now
    required property int fullWordsRoom // of the verdict's words, where there is room
    required property int modeCount
    required property real nameLength  // of the longest name of a mode
    required property int appCount
    required property int fullIconSize // pixels, where there is room
    required property real fullSpacing
    required property var cards        // the lengths that each card can have beside full icons, the longest first
    required property real cardSpacing
    required property real cardsFrame  // what the cards need apart from themselves
    required property real swelling    // that the applications' row may add to its length under the pointer

    readonly property real free: room - swelling
    readonly property int pillSpacing: 2
    readonly property int iconRoom: 6       // that an application's place is longer than its icon
    readonly property int startOfOthers: 17 // before the first application that is not the mode's

    // They grow with the text, as long as the bar does not get deeper for it.
    readonly property int fullPillSize: Math.max(36, Math.min(Math.round(36 * Theme.textScale), fullIconSize))

    readonly property int leastIconSize: Math.ceil(fullIconSize * 0.6)
    readonly property real leastApps: Math.min(appCount, 4) * (leastIconSize + iconRoom)

    readonly property int leastWordsRoom: Math.min(fullWordsRoom, 80)
    readonly property int easyIconSize: Math.min(fullIconSize, 40) // down to which words keep their room

    // Which of its lengths each card has, where icons and names have their full size. The longest gives way first, of several the last.
    readonly property var cardSteps: {
        const steps = cards.map(() => 0)
        const length = (card, index) => card[steps[index]]
        const easyRoom = free - steady - cardsFrame - leastWordsRoom - pillsLength(fullPillSize, nameLength)
                       - startOfOthers - appCount * (fullIconSize + iconRoom + fullSpacing)
        while (room > 0 && cardsLength(steps) > easyRoom) { // without a window yet, nothing is short of room
            const shrinkable = cards.map((card, index) => steps[index] + 1 < card.length ? length(card, index) : 0)
            const longest = Math.max(0, ...shrinkable)
            if (longest === 0)
                break
            ++steps[shrinkable.lastIndexOf(longest)]
        }
        return steps
    }
    // Where not even the smallest applications fit beside them, the cards have two fifths of what there is for both.
    readonly property real cardsRoom: {
        if (cards.length === 0)
            return 0
        const both = free - steady - cardsFrame - leastWordsRoom - pillsLength(Math.round(fullPillSize * 5 / 6), 0) - startOfOthers
        const others = both - appCount * (leastIconSize + iconRoom + leastSpacing)
        return Math.min(cardsLength(cardSteps), Math.max(others, Math.round(both * 0.4), cards[0][cardSteps[0]]))
    }
    readonly property real taken: cards.length === 0 ? steady : steady + cardsFrame + cardsRoom
    function cardsLength(steps: var): real {
        return cards.reduce((sum, card, index) => sum + card[steps[index]], 0) + Math.max(0, cards.length - 1) * cardSpacing
    }

    // As if there were four applications at least: else the bar's depth would change with the second or third.
    readonly property bool isCompact: free - taken - leastWordsRoom - pillsLength(fullPillSize, nameLength) < Math.max(leastApps, 4 * (leastIconSize + iconRoom))
    readonly property int pillSize: isCompact ? Math.round(fullPillSize * 5 / 6) : fullPillSize

    // For the applications and the words.
    readonly property real shared: free - taken - pillsLength(pillSize, isCompact ? 0 : nameLength) - startOfOthers
    readonly property int wordsRoom: Math.max(leastWordsRoom, Math.min(fullWordsRoom, shared - appCount * (easyIconSize + iconRoom + fullSpacing)))

    readonly property int iconSize: {
        const fitting = (shared - wordsRoom) / Math.max(1, appCount) - iconRoom - fullSpacing
        // In steps: other windows move when the bar's depth changes.
        return Math.max(leastIconSize, Math.min(fullIconSize, 4 * Math.floor(fitting / 4)))
    }
    readonly property real leastSpacing: Math.min(fullSpacing, Math.floor(fullSpacing / 2))
    readonly property real spacing: iconSize < fullIconSize ? leastSpacing : fullSpacing

    readonly property real pitch: iconSize + iconRoom + spacing // from one application to the next

    readonly property real pillsRoom: Math.max(3 * (pillSize + pillSpacing), free - current - leastApps)
    function appsRoom(pills: real): real {
        return Math.max(leastIconSize + iconRoom, free - current - pills)
    }

    function pillsLength(size: int, name: real): real {
        return modeCount * (size + pillSpacing) - pillSpacing + name
    }
}
