import QtQuick

// How a row swells under the pointer: a pure function of the pointer and of the row at rest. It stretches the row as if
// it were rubber, most under the pointer and not at all beyond a reach, and leaves the point under the pointer where it
// is. So whatever is under the pointer at rest is still under it, and nothing ever runs away from it.
QtObject {
    id: wave

    required property real start // of the row at rest, in its own coordinates
    required property real end
    required property real pointer // along the row; it may be beside it
    required property real factor  // of what is right under the pointer
    required property real reach   // pixels to each side of the pointer
    required property real amount  // 0 to 1, as it comes and goes

    readonly property real strength: (factor - 1) * amount
    readonly property bool isUp: strength > 0.001
    // How far what stands before the row, and behind it, gives way. Whole pixels: it is drawn without blurring.
    readonly property int before: Math.round(place(start) - start)
    readonly property int after: Math.round(place(end) - end)

    // Where a point of the resting row is now.
    readonly property real here: stretch(pointer)
    function place(point: real): real {
        return isUp ? point + strength * (stretch(point) - here) : point
    }

    function stretch(point: real): real {
        const away = Math.max(-reach, Math.min(reach, Math.max(start, Math.min(end, point)) - pointer))
        return away / 2 + reach / (2 * Math.PI) * Math.sin(Math.PI * away / reach)
    }
}
