import QtQuick

// Where a row has its control. Controls are no wider than there is room.
Item {
    property real room

    width: childrenRect.width
    height: childrenRect.height
}
