import QtQuick

// Items one after the other, along an edge that can change.
Grid {
    id: line

    required property bool isVertical

    horizontalItemAlignment: Grid.AlignHCenter
    verticalItemAlignment: Grid.AlignVCenter

    // Never one row and one column at once: it would complain of all items that do not fit.
    function turn() {
        rows = -1
        columns = -1
        if (isVertical)
            columns = 1
        else
            rows = 1
    }
    onIsVerticalChanged: turn()
    Component.onCompleted: turn()
}
