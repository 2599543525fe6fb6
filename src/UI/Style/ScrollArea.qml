import QtQuick

// What is higher than its place: scrolls, shows where it is, and follows the keyboard.
Flickable {
    id: area

    required property Colors colors

    boundsBehavior: Flickable.StopAtBounds
    clip: true

    // With so much in sight above it and below it.
    function show(item: Item, room: real) {
        const top = item.mapToItem(contentItem, 0, 0).y
        const wanted = Math.max(top + item.height + room - height, Math.min(top - room, contentY))
        contentY = Math.max(0, Math.min(contentHeight - height, wanted))
    }

    readonly property Item focused: Window.activeFocusItem
    onFocusedChanged: {
        let parent = focused
        let whole = focused // with what belongs to it, as a list below a field
        while (parent && parent !== contentItem) {
            if (parent instanceof FocusScope)
                whole = parent
            parent = parent.parent
        }
        if (parent)
            show(whole, 40)
    }

    Rectangle {
        parent: area // it does not scroll itself
        anchors { right: parent.right; rightMargin: 2 }
        y: area.visibleArea.yPosition * area.height + 2
        width: 5
        height: Math.max(24, area.visibleArea.heightRatio * area.height - 4)
        radius: 2.5
        color: area.colors.secondaryText
        opacity: area.visibleArea.heightRatio >= 1 ? 0 : area.moving ? 0.6 : 0.25
        Behavior on opacity { NumberAnimation { duration: Theme.normal } }
    }
}
